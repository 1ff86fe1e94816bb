#include <array>
#include <memory>

#include "core/frmAbout.hpp"
#include "core/frmOptions.hpp"
#include "core/tool_table.hpp"
#include "screens/wx/accessible.hpp"
#include "screens/wx/form_window.hpp"
#include "services/frmComplete.hpp"
#include "tests/fakes/fake_settings.hpp"
#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

struct Product : OnDisplay {
    WxScreen screen{{}};
    fakes::FakeSettings settings;
    std::vector<std::unique_ptr<Form>> forms;

    Product() {
        set_environment({screen, settings});
        for (const Tool& tool : tools()) {
            auto form = tool.make_form();
            form->AppTitle = tool.title;
            forms.push_back(std::move(form));
        }
        add_if_no_tool<frmAbout>();
        add_if_no_tool<frmOptions>();
        add_if_no_tool<frmComplete>();
    }

    template <class Kind>
    void add_if_no_tool() {
        auto form = std::make_unique<Kind>();
        for (const auto& other : forms) {
            if (other->name() == form->name()) return;
        }
        forms.push_back(std::move(form));
    }

    static std::size_t place(const Form& form, const std::string& name) {
        std::size_t at = 0;
        for (const Control* control : form.controls()) {
            if (to_utf8(control->name()) == name) return at;
            ++at;
        }
        throw std::runtime_error("no control has the focus");
    }
};

}  // namespace

TEST_CASE_FIXTURE(Product, "every form has a layout with exactly its controls, and every layout a form") {
    std::set<std::u16string> names;
    for (const auto& form : forms) {
        CAPTURE(to_utf8(form->name()));
        CHECK_NOTHROW(std::make_shared<wx::FormWindow>(*form, wx::product_layouts(), nullptr));
        names.insert(form->name());
    }
    for (const auto& [name, layout] : wx::product_layouts())
        CHECK_MESSAGE(names.contains(std::u16string(name)), to_utf8(name));
}

TEST_CASE_FIXTURE(Product,
                  "in every dialog the keyboard goes through the controls in their order, each of which has a name") {
    for (const auto& form : forms) {
        if (form->name() == u"frmComplete") continue;  // it takes no keys
        CAPTURE(to_utf8(form->name()));
        show(
            *form, [&] { screen.close_all(); },
            [&](User& user) {
                std::vector<std::size_t> stops{place(*form, user.focus(*form))};
                for (std::size_t stop = 0; stop < form->controls().size(); ++stop) {
                    user.key("Tab");
                    const std::size_t next = place(*form, user.focus(*form));
                    if (next == stops.front()) break;
                    if (next != stops.back()) stops.push_back(next);
                }
                CHECK(std::ranges::is_sorted(stops));
                for (const std::size_t stop : stops) {
                    user.on_screen([&] {
                        const Control& control = *form->controls()[stop];
                        const auto& window = window_of<wxWindow>(to_utf8(control.name()));
                        CAPTURE(to_utf8(control.name()));
                        CHECK((!window.GetLabel().empty() || !wx::reader_name(window).empty() ||
                               window.GetChildren().GetCount() > 0));
                    });
                }
            });
    }
}
