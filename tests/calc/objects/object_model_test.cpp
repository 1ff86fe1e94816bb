#include "hosts/calc/adapter/objects/object_model.hpp"

#include <doctest/doctest.h>

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

#include "automation/member_names.hpp"
#include "platform/text.hpp"

namespace qor::calc::tests {
namespace {

// One line a member, such as "Range.Value: property".
using Lines = std::set<std::string>;

std::vector<std::string> cells_of(const std::string& row) {
    std::vector<std::string> cells;
    std::istringstream text(row.substr(1));
    for (std::string cell; std::getline(text, cell, '|');) {
        const auto start = cell.find_first_not_of(' ');
        cells.push_back(start == std::string::npos ? "" : cell.substr(start, cell.find_last_not_of(' ') - start + 1));
    }
    return cells;
}

// What the page says of its own rows.
struct Tally {
    std::size_t objects = 0;
    std::size_t members = 0;
    std::size_t remarks = 0;
    std::size_t unserved = 0;
};

std::string sentence_of(const Tally& tally) {
    return fmt::format(
        "There are {} members of {} objects: {} with no difference known, {} with a difference in a "
        "detail, and {} that begin with **cannot**.",
        tally.members, tally.objects, tally.members - tally.remarks, tally.remarks - tally.unserved, tally.unserved);
}

// The page in one line, so that a sentence is found wherever its lines are broken.
std::string whole_page() {
    std::ifstream page(QOR_OBJECT_MODEL);
    std::string text{std::istreambuf_iterator<char>(page), {}};
    std::ranges::replace(text, '\n', ' ');
    return text;
}

Lines documented_members(Tally& tally) {
    Lines lines;
    std::ifstream page(QOR_OBJECT_MODEL);
    REQUIRE(page);
    std::string object;
    std::string previous;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("## ")) {
            object = line.substr(3);
            previous.clear();
            ++tally.objects;
        }
        if (!line.starts_with("| ") || line.starts_with("| member ")) continue;
        const std::vector<std::string> cells = cells_of(line);
        INFO(object << ": " << line);
        REQUIRE(cells.size() == 4);
        CHECK(previous < cells[0]);  // in the order of their names, and none twice
        previous = cells[0];
        const bool known_kind = cells[1] == "property" || cells[1] == "property, read-only" || cells[1] == "method";
        CHECK(known_kind);
        ++tally.members;
        if (!cells[3].empty()) ++tally.remarks;
        if (cells[3].starts_with("**cannot**: ")) ++tally.unserved;
        lines.insert(object + "." + cells[0] + (cells[1] == "property" ? ": writable" : ": not writable"));
    }
    return lines;
}

Lines answered_members() {
    Lines lines;
    for (const ObjectDescription& object : object_model()) {
        for (const MemberDescription& member : object.members()) {
            lines.insert(to_utf8(object.name) + "." + to_utf8(member.name) +
                         (member.writable ? ": writable" : ": not writable"));
        }
    }
    return lines;
}

Lines without(const Lines& lines, const Lines& others) {
    Lines result;
    std::ranges::set_difference(lines, others, std::inserter(result, result.end()));
    return result;
}

}  // namespace

TEST_CASE("the page on the object model lists the members that the adapter answers, and no others") {
    Tally tally;
    const Lines documented = documented_members(tally);
    const Lines answered = answered_members();
    CHECK(answered.size() > 100);
    for (const std::string& line : without(answered, documented)) FAIL_CHECK("missing on the page: " << line);
    for (const std::string& line : without(documented, answered)) FAIL_CHECK("only on the page: " << line);
    CHECK_MESSAGE(whole_page().find(sentence_of(tally)) != std::string::npos, sentence_of(tally));
}

TEST_CASE("every name that the tools use is a member of some object or an argument") {
    const Lines arguments{
        "After",         "ArrangeStyle",    "Before",          "Category",    "ColumnAbsolute", "Default",
        "Description",   "Destination",     "FileFilter",      "Filename",    "HasMenu",        "HasShortcutKey",
        "HelpContextID", "HelpFile",        "InitialFilename", "LinkSource",  "LookAt",         "LookIn",
        "Macro",         "MenuText",        "Password",        "Prompt",      "RelativeTo",     "RowAbsolute",
        "SaveChanges",   "SearchDirection", "SearchOrder",     "ShortcutKey", "Temporary",      "Title",
        "What",          "Window"};
    Lines members;
    for (const ObjectDescription& object : object_model()) {
        for (const MemberDescription& member : object.members()) members.insert(to_utf8(to_lower(member.name)));
    }
    Lines others;
    for (const MemberName& name : names::all) {
        if (!members.contains(to_utf8(to_lower(name.text())))) others.insert(to_utf8(name.text()));
    }
    CHECK(others == arguments);
}

}  // namespace qor::calc::tests
