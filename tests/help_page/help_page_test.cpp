#include <doctest/doctest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "core/tool_table.hpp"
#include "functions/registry.hpp"

using namespace qor;

namespace {

std::string page() {
    std::ostringstream text;
    text << std::ifstream(QOR_HELP_PAGE).rdbuf();
    return text.str();
}

// What stands between the marks, each time.
std::multiset<std::string> between(const std::string& text, const std::string& before, const std::string& behind) {
    std::multiset<std::string> found;
    for (std::size_t at = text.find(before); at != text.npos; at = text.find(before, at + 1)) {
        const std::size_t begin = at + before.size();
        found.insert(text.substr(begin, text.find(behind, begin) - begin));
    }
    return found;
}

}  // namespace

TEST_CASE("every help id has one place in the page, and every link leads somewhere") {
    const std::string text = page();
    const auto marks = between(text, "id=\"", "\"");
    std::set<std::string> ids{"170010", "170125"};  // the alternate template, the options
    for (const Tool& tool : tools()) ids.insert(std::to_string(tool.help_id));
    for (const Function& function : worksheet_functions()) ids.insert(std::to_string(function.help_id));
    CHECK(ids.size() == 2 + tools().size() + 203);
    for (const std::string& id : ids) {
        CAPTURE(id);
        CHECK(marks.count(id) == 1);
    }
    for (const std::string& link : between(text, "href=\"#", "\"")) {
        CAPTURE(link);
        CHECK(marks.count(link) == 1);
    }
}

TEST_CASE("a function is told with its arguments and an example") {
    CHECK(page().find(R"(<section id="100030"><h3>ARNS</h3>
<p class="call">ARNS(dBgAR; dEdAR; dNetSales; [lDecPlace = 4])</p>
<p>Returns the Accounts Receivable to Net Sales Ratio.</p>
<p class="example">=ARNS(100; 300; 1000) gives 0.2</p>
</section>
)") != std::string::npos);
}
