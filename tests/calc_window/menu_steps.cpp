#include "tests/calc_window/menu_steps.hpp"

#include <algorithm>

namespace qor::calc::tests {
namespace {

constexpr std::int32_t button = 1;
constexpr std::int32_t drop_down = 3;
constexpr std::int32_t popup = 10;

std::u16string without_ampersand(std::u16string text) {
    std::erase(text, u'&');
    return text;
}

void describe(const Object& control, const ToolRow& tool) {
    if (tool.begins_group) control.put(names::BeginGroup, true);
    control.put(names::Caption, tool.caption);
    control.put(names::OnAction, tool.macro);
    if (!tool.face.empty()) control.call(names::PasteFace);
    control.put(names::Tag, std::u16string(menu_title));
    control.put(names::ToolTipText, without_ampersand(tool.caption));
}

Object add_popup(const Object& controls, const std::u16string& caption) {
    Object added = controls.call(names::Add, named(names::Type, popup), named(names::Temporary, false));
    added.put(names::Caption, caption);
    added.put(names::Tag, std::u16string(menu_title));
    return added;
}

Object add_top(const Object& application) {
    const Object menu_bar = application.get(names::CommandBars, 1);
    const Object help = menu_bar.call(names::FindControl, popup, 30010);
    Object top = menu_bar.get(names::Controls)
                     .call(names::Add, named(names::Type, popup), named(names::Before, help.get(names::Index)),
                           named(names::Temporary, false));
    top.put(names::Caption, u"&" + std::u16string(menu_title));
    top.put(names::Tag, std::u16string(menu_title));
    return top;
}

void place(const Object& bar, const ToolGroup& group) {
    bar.put(names::Position, 4);
    bar.put(names::Height, 49);
    bar.put(names::Top, group.top);
    bar.put(names::Width, group.width);
    bar.put(names::Left, 65);
    bar.put(names::Visible, true);
}

void add_bookmarks(const Object& bar) {
    const Object list = bar.get(names::Controls).call(names::Add, named(names::Type, drop_down));
    list.put(names::BeginGroup, true);
    list.put(names::DropDownWidth, 150);
    list.put(names::OnAction, u"UTBoo");
    list.put(names::Width, list.get(names::DropDownWidth));
    list.put(names::Tag, std::u16string(menu_title));
    describe(bar.get(names::Controls).call(names::Add, button),
             {u"Add, Edit, and Delete Bookmarks", u"UTBooAED", u"BOOAED"});
}

// The list, on whichever bar it stands.
void fill_bookmarks(const Object& application) {
    for (const Variant& bar : application.get(names::CommandBars).object().items()) {
        const Object list = bar.call(names::FindControl, drop_down, Missing{}, std::u16string(menu_title));
        if (!list) continue;
        list.call(names::AddItem, u"(Bookmarks)");
        list.call(names::AddItem, u"Sales of the year");
        list.put(names::ListIndex, 1);
        return;
    }
}

}  // namespace

const std::vector<ToolGroup>& tool_groups() {
    static const std::vector<ToolGroup> groups{
        {u"&Reports",
         u" - Report Manager",
         139,
         137,
         {{u"&Cell Color", u"UTCelCol", u"CELCOL"},
          {u"Cell &Information", u"UTCelInf", u"CELINF"},
          {u"&Date Review", u"UTDatRev", u"DATREV"},
          {u"&Workbook Summary", u"UTWokSum", u"WOKSUM", true},
          {u"Worksheet &Summary", u"UTWorSum", u"WORSUM"}}},
        {u"&Workbooks",
         u" - Workbook Manager",
         203,
         316,
         {{u"&Workbook Groups", u"UTWokGro", u"WORGRO"},
          {u"&Print Groups", u"UTPriGro", u"PRIGRO"},
          {u"&New File - Alternate Template", u"UTAltTem", u"ALTTEM", true},
          {u"&Add Worksheets", u"UTAddWor", u"ADDWOR", true},
          {u"&Delete Empty Worksheets", u"UTDelEmpWor", u"DELEMPWOR"},
          {u"Window &Hide and Unhide", u"UTWinHidUnh", u"WINHIDUNH"}}},
        {u"Wor&ksheets",
         u" - Worksheet Manager",
         268,
         391,
         {{u"&Cell Selector", u"UTCelSel", u"CELSEL"},
          {u"&Cell Tools", u"UTCelToo", u"CELTOO"},
          {u"&Insert Date and Time", u"UTInsDatTim", u"INSDATTIM", true},
          {u"&Cell Events", u"UTCelEve", u"CELEVE"}}},
    };
    return groups;
}

std::u16string name_of_bar(const ToolGroup& group) {
    return std::u16string(menu_title) + group.bar;
}

void create_menu(const Object& application, FaceClipboard& faces) {
    delete_menu(application);
    application.put(names::ScreenUpdating, false);
    const Object top = add_top(application);
    for (const ToolGroup& group : tool_groups()) {
        const Object entries = add_popup(top.get(names::Controls), group.caption).get(names::Controls);
        const Object bar = application.get(names::CommandBars)
                               .call(names::Add, named(names::Name, name_of_bar(group)), named(names::Temporary, true));
        for (const ToolRow& tool : group.tools) {
            faces.put(tool.face);
            describe(entries.call(names::Add, button), tool);
            describe(bar.get(names::Controls).call(names::Add, button), tool);
        }
    }
    const Object last_bar = application.get(names::CommandBars, name_of_bar(tool_groups().back()));
    faces.put(u"BOOAED");
    add_bookmarks(last_bar);
    describe(top.get(names::Controls).call(names::Add, button), {u"&Options...", u"UTOpt", u"", true});
    for (const ToolGroup& group : tool_groups()) {
        place(application.get(names::CommandBars, name_of_bar(group)), group);
    }
    fill_bookmarks(application);
    application.put(names::ScreenUpdating, true);
}

void delete_menu(const Object& application) {
    for (const Variant& bar : application.get(names::CommandBars).object().items()) {
        const Variant name = bar.get(names::Name);
        const auto same = [&](const ToolGroup& group) { return *name.get_if<std::u16string>() == name_of_bar(group); };
        if (std::ranges::any_of(tool_groups(), same)) bar.call(names::Delete);
    }
    for (const Variant& bar : application.get(names::CommandBars).object().items()) {
        for (;;) {
            const Object control = bar.call(names::FindControl, Missing{}, Missing{}, std::u16string(menu_title));
            if (!control) break;
            control.call(names::Delete);
        }
    }
}

}  // namespace qor::calc::tests
