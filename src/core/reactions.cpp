#include "core/reactions.hpp"

#include <algorithm>
#include <array>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/message.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"
#include "runtime/trim.hpp"
#include "services/CDrive.hpp"
#include "services/CFile.hpp"
#include "workbooks/empty_worksheets.hpp"

namespace qor {
namespace {

struct ArrangeOption {
    const ButtonOption* button;
    ArrangeStyle style;
};
constexpr std::array arrange_options{
    ArrangeOption{&option::rdoT1AutoAdjWin[0], ArrangeStyle::tiled},
    ArrangeOption{&option::rdoT1AutoAdjWin[1], ArrangeStyle::horizontal},
    ArrangeOption{&option::rdoT1AutoAdjWin[2], ArrangeStyle::vertical},
    ArrangeOption{&option::rdoT1AutoAdjWin[3], ArrangeStyle::cascade},
};

std::vector<Variant> worksheets_of(const std::u16string& workbook) {
    return gExcel.get(names::Workbooks, workbook).get(names::Worksheets).object().items();
}

struct Property {
    std::u16string name;
    Variant object;
};

std::vector<Property> custom_properties_of(const std::u16string& workbook) {
    std::vector<Property> properties;
    const Object all = gExcel.get(names::Workbooks, workbook).get(names::CustomDocumentProperties);
    for (Variant& property : all.items()) {
        std::u16string name = to_text(property.get(names::Name));
        properties.push_back({std::move(name), std::move(property)});
    }
    return properties;
}

void keep_scroll_areas(const std::u16string& workbook) {
    const std::vector<Property> properties = custom_properties_of(workbook);
    for (const Variant& sheet : worksheets_of(workbook)) {
        const std::u16string name = to_text(sheet.get(names::Name));
        const auto property = std::ranges::find(properties, name, &Property::name);
        if (property != properties.end()) {
            property->object.put(names::Value, sheet.get(names::ScrollArea));
            continue;
        }
        gExcel.get(names::Workbooks, workbook)
            .get(names::CustomDocumentProperties)
            .call(names::Add, named(names::Name, name), named(names::LinkToContent, false),
                  named(names::Type, number_of(PropertyKind::text)), named(names::Value, sheet.get(names::ScrollArea)),
                  named(names::LinkSource, false));
    }
}

void set_kept_scroll_areas(const std::u16string& workbook) {
    const std::vector<Property> properties = custom_properties_of(workbook);
    for (const Variant& sheet : worksheets_of(workbook)) {
        const auto property = std::ranges::find(properties, to_text(sheet.get(names::Name)), &Property::name);
        if (property != properties.end()) sheet.put(names::ScrollArea, property->object.get(names::Value));
    }
}

bool may_replace_backup() {
    return show_message(u"Do you wish to replace existing backup?", MessageIcon::none, MessageButtons::yes_no) ==
           MessageAnswer::yes;
}

}  // namespace

void QAutoUpdateWindowPositions() {
    if (!is_on(option::chkT1AutoAdjWin)) return;
    std::optional<ArrangeStyle> style;
    for (const ArrangeOption& arranging : arrange_options) {
        if (is_on(*arranging.button) && !style) style = arranging.style;
    }
    const bool active_workbook_only = is_on(option::chkT1AutoAdjWinWorkbookOnly);
    if (!style) return;
    const Variant& owner = active_workbook_only ? gExcel.get(names::ActiveWorkbook) : Variant(gExcel);
    owner.get(names::Windows).call(names::Arrange, number_of(*style), active_workbook_only);
}

void QOptionDeleteEmptyWorksheets(const std::optional<std::u16string>& sWorkbookName) {
    if (is_on(option::chkT3AutoDeleteEmptyWorksheets)) DeleteEmptyWorksheets(sWorkbookName.value_or(std::u16string()));
}

void QScrollableArea(const std::u16string& sWorkbookName, const std::u16string& sAction) {
    if (!is_on(option::chkT4SetScrollArea)) return;
    if (sAction == u"SAVE") {
        keep_scroll_areas(sWorkbookName);
    } else {
        set_kept_scroll_areas(sWorkbookName);
    }
}

Ending QAlwCreBacBefSav(const std::optional<std::u16string>& sWorkbookName) {
    if (!is_on(option::chkT2AlwaysCreateBackupUponSave)) return Ending::complete;
    const bool warns = is_on(option::chkT2WarnBackupExists);
    std::u16string folder(trim(text_of(option::txtT2AlwaysCreateBackupUponSave)));
    if (!CFile::FolderExists(folder)) return Ending::early;
    if (!folder.ends_with(u'\\') && !folder.ends_with(u'/')) folder += u'\\';
    const std::u16string name = sWorkbookName.value_or(std::u16string());
    const Variant workbook = gExcel.get(names::Workbooks, name);
    if (to_text(workbook.get(names::Path)).empty()) return Ending::early;
    const std::u16string backup = folder + CFile::GetFileNameWOExt(name) + u".xlk";
    if (!warns || !CFile::FileExists(backup) || may_replace_backup()) workbook.call(names::SaveCopyAs, backup);
    return Ending::complete;
}

void QSetSaveFolder() {
    attempt([] {
        if (!is_on(option::chkT2DefaultSave)) return;
        const std::u16string folder(trim(text_of(option::txtT2DefaultSaveFolder)));
        if (!folder.empty()) CDrive::SetCurrDir(folder);
    });
}

}  // namespace qor
