#include <wx/notebook.h>
#include <wx/splitter.h>

#include <algorithm>
#include <memory>

#include "core/frmAbout.hpp"
#include "core/frmOptions.hpp"
#include "core/tool_table.hpp"
#include "screens/wx/accessible.hpp"
#include "screens/wx/form_window.hpp"
#include "services/frmComplete.hpp"
#include "tests/fakes/fake_host.hpp"
#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

struct Product : OnDisplay, fakes::HostWith<WxScreen> {
    std::vector<std::unique_ptr<Form>> forms;

    Product() : HostWith(NativeWindow()) {
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

    static Tabs* tabs_of(const Form& form) {
        for (Control* control : form.controls()) {
            if (auto* tabs = dynamic_cast<Tabs*>(control)) return tabs;
        }
        return nullptr;
    }
    static void user_turns(const Tabs& tabs, int tab) {
        window_of<wxNotebook>(to_utf8(tabs.name())).SetSelection(static_cast<std::size_t>(tab));
    }

    // Where the Tab key leads until it comes back to where it began, by the places of the controls.
    static std::vector<std::size_t> stops_of(User& user, const Form& form) {
        std::vector<std::size_t> stops{place(form, user.focus(form))};
        for (std::size_t presses = 0; presses < 2 * form.controls().size(); ++presses) {
            user.key("Tab");
            const std::size_t next = place(form, user.focus(form));
            if (next == stops.front()) break;
            if (next != stops.back()) stops.push_back(next);
        }
        return stops;
    }

    // The controls that are shown and enabled and take keys.
    static std::vector<std::size_t> reachable(const Form& form) {
        std::vector<std::size_t> places;
        for (std::size_t at = 0; at < form.controls().size(); ++at) {
            const Control& control = *form.controls()[at];
            const std::string name = to_utf8(control.name());
            if (dynamic_cast<const Frame*>(&control) || dynamic_cast<const Label*>(&control)) continue;
            const auto& window = window_of<wxWindow>(name);
            if (window.IsShownOnScreen() && window.IsEnabled()) places.push_back(at);
        }
        return places;
    }

    static std::string names(const Form& form, const std::vector<std::size_t>& places) {
        std::string list;
        for (const std::size_t at : places) list += to_utf8(form.controls()[at]->name()) + ' ';
        return list;
    }

    // What is made of several windows has a name in each that takes keys.
    static bool has_name(const wxWindow& window) {
        if (!window.GetLabel().empty() || !wx::reader_name(window).empty()) return true;
        if (window.GetChildren().empty()) return false;
        return std::ranges::all_of(window.GetChildren(), [](const wxWindow* part) {
            return !part->IsShown() || !part->CanAcceptFocusFromKeyboard() || has_name(*part);
        });
    }

    static void check_name(const Control& control) {
        if (dynamic_cast<const Tabs*>(&control)) return;  // each tab has its own
        CAPTURE(to_utf8(control.name()));
        CHECK(has_name(window_of<wxWindow>(to_utf8(control.name()))));
    }
};

}  // namespace

TEST_CASE_FIXTURE(Product, "every form has a layout with exactly its controls, and every layout a form") {
    std::set<std::u16string> names;
    for (const auto& form : forms) {
        CAPTURE(to_utf8(form->name()));
        CHECK_NOTHROW(std::make_shared<wx::FormWindow>(*form, wx::product_layouts(), nullptr));
        names.emplace(form->layout());
    }
    for (const auto& layout : wx::product_layouts())
        CHECK_MESSAGE(names.contains(std::u16string(layout.first)), to_utf8(layout.first));
}

TEST_CASE_FIXTURE(Product, "what is split begins with its left part as wide as that needs to be") {
    int split = 0;
    for (const auto& form : forms) {
        CAPTURE(to_utf8(form->name()));
        const auto window = std::make_shared<wx::FormWindow>(*form, wx::product_layouts(), nullptr);
        for (const wxWindow* child : window->dialog().GetChildren()) {
            const auto* splitter = dynamic_cast<const wxSplitterWindow*>(child);
            if (!splitter) continue;
            ++split;
            // Narrow fonts may need less than the least that a pane has.
            const int needed = splitter->GetWindow1()->GetBestSize().x;
            CHECK(splitter->GetSashPosition() == std::max(needed, splitter->GetMinimumPaneSize()));
        }
    }
    CHECK(split == 4);  // the reports
}

TEST_CASE_FIXTURE(Product,
                  "in every dialog the keyboard goes through all controls in their order, each of which has a name") {
    for (const auto& form : forms) {
        if (form->name() == u"frmComplete") continue;  // it takes no keys
        CAPTURE(to_utf8(form->name()));
        show(
            *form, [&] { screen.close_all(); },
            [&](User& user) {
                Tabs* tabs = tabs_of(*form);
                for (std::size_t tab = 0; tab < (tabs ? tabs->captions().size() : 1); ++tab) {
                    CAPTURE(tab);
                    user.on_screen([&] {
                        if (tabs) user_turns(*tabs, static_cast<int>(tab));
                        window_of<wxWindow>(to_utf8(form->controls().front()->name())).SetFocus();
                    });
                    user.settle();
                    const auto stops = stops_of(user, *form);
                    CHECK(std::ranges::is_sorted(stops));
                    std::vector<std::size_t> all;
                    user.on_screen([&] {
                        all = reachable(*form);
                        for (const std::size_t stop : stops) check_name(*form->controls()[stop]);
                    });
                    CHECK(names(*form, stops) == names(*form, all));
                }
            });
    }
}
