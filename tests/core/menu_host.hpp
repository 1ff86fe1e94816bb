#pragma once

#include <doctest/doctest.h>

#include "core/MMenu.hpp"
#include "platform/text.hpp"
#include "stores/data_file.hpp"
#include "tests/fakes/command_host.hpp"
#include "tests/fakes/fake_command_bars.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::tests {

using fakes::FakeControl;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

class ClipboardOfFaces final : public FaceClipboard {
  public:
    explicit ClipboardOfFaces(fakes::FakeBars& bars) : bars_(bars) {}
    Lines loaded;
    void put(std::u16string_view name) override {
        loaded.emplace_back(name);
        bars_.clipboard = name;
    }

  private:
    fakes::FakeBars& bars_;
};

// A host with a menu of its own, on which the add-in's is made and removed.
struct MenuHost : fakes::CommandHost {
    fakes::FakeBars bars{host_log};
    ClipboardOfFaces faces{bars};
    fakes::InPlace with_faces{{screen, settings, faces}};
    test::TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string()) + u"\\Bookmarks.dat";

    MenuHost() {
        application.answers(names::CommandBars,
                            [this](Access, Values index) -> Variant { return fakes::command_bars_of(bars, index); });
        application.answers(names::ScreenUpdating, [this](Access, Values value) -> Variant {
            done.emplace_back(*value[0].get_if<bool>() ? u"draws" : u"holds");
            return {};
        });
        application.holds(names::ThisWorkbook, make(u"Workbook", [this](FakeObject& book) {
                              book.holds(names::Path, from_utf8(folder.path.string()));
                          }));
        fakes::FakeBar& main = bars.bars.emplace_back();
        main.name = u"Worksheet Menu Bar";
        main.controls.emplace_back().properties[u"Caption"] = u"&File";
        FakeControl& help = main.controls.emplace_back();
        help.type = 10;
        help.id = 30010;
        help.properties[u"Caption"] = u"&Help";
        bars.bars.emplace_back().name = u"Standard";
        test::put(folder.path / "Bookmarks.dat", "There are no items\r\n");
    }

    // With all tools, whether their members are there yet or not.
    void create() { create_on(host); }
    static void create_on(const Object& application_object) {
        gExcel = application_object;
        create_menu([](std::u16string_view) { return true; });
        gExcel = Object();
    }
    void remove(bool only_save) const { call(u"QMenuDelete", only_save); }
    std::list<FakeControl>& main() { return bars.bars.front().controls; }
    FakeControl& top() { return *std::next(main().begin()); }
    FakeControl& entry(std::size_t popup, std::size_t place) {
        return *std::next(std::next(top().controls.begin(), std::ptrdiff_t(popup))->controls.begin(),
                          std::ptrdiff_t(place));
    }
    fakes::FakeBar& bar(const std::u16string& manager) {
        fakes::FakeBar* found = bars.find(u"QOR Plus - " + manager + u" Manager");
        REQUIRE(found);
        return *found;
    }
    // The drop-down list of bookmarks.
    FakeControl& list() { return *std::next(bar(u"Worksheet").controls.begin(), 19); }
};

inline Lines texts(const std::list<FakeControl>& controls, const std::u16string& property) {
    Lines all;
    for (const FakeControl& control : controls) all.push_back(control.text(property));
    return all;
}

// The actions of the controls before which a group begins.
inline Lines with_group(const std::list<FakeControl>& controls) {
    Lines all;
    for (const FakeControl& control : controls) {
        if (control.properties.contains(u"BeginGroup")) all.push_back(control.text(u"OnAction"));
    }
    return all;
}

inline Lines faces_of(const std::list<FakeControl>& controls) {
    Lines all;
    for (const FakeControl& control : controls) all.push_back(control.face);
    return all;
}

}  // namespace qor::tests
