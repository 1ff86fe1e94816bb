#include "core/reactions.hpp"

#include <algorithm>
#include <array>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/boolean_option.hpp"
#include "ground/product.hpp"
#include "ground/text_option.hpp"
#include "runtime/conversion.hpp"
#include "runtime/trim.hpp"
#include "services/CDrive.hpp"
#include "services/CFile.hpp"
#include "workbooks/empty_worksheets.hpp"

namespace qor {
namespace {

struct ArrangeOption {
    std::u16string_view name;
    ArrangeStyle style;
};
constexpr std::array arrange_options{
    ArrangeOption{u"rdoT1AutoAdjWin0", ArrangeStyle::tiled},
    ArrangeOption{u"rdoT1AutoAdjWin1", ArrangeStyle::horizontal},
    ArrangeOption{u"rdoT1AutoAdjWin2", ArrangeStyle::vertical},
    ArrangeOption{u"rdoT1AutoAdjWin3", ArrangeStyle::cascade},
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
    return environment().screen.message_box({.title = std::u16string(product::title),
                                             .text = u"Do you wish to replace existing backup?",
                                             .buttons = MessageButtons::yes_no}) == MessageAnswer::yes;
}

}  // namespace

void QAutoUpdateWindowPositions() {
    if (!boolean_option(u"chkT1AutoAdjWin", u"0")) return;
    std::optional<ArrangeStyle> style;
    for (const ArrangeOption& option : arrange_options) {
        if (boolean_option(option.name, u"0") && !style) style = option.style;
    }
    const bool active_workbook_only = boolean_option(u"chkT1AutoAdjWinWorkbookOnly", u"0");
    if (!style) return;
    const Variant& owner = active_workbook_only ? gExcel.get(names::ActiveWorkbook) : Variant(gExcel);
    owner.get(names::Windows).call(names::Arrange, number_of(*style), active_workbook_only);
}

void QOptionDeleteEmptyWorksheets(const std::optional<std::u16string>& sWorkbookName) {
    if (boolean_option(u"chkT3AutoDeleteEmptyWorksheets", u"0"))
        DeleteEmptyWorksheets(sWorkbookName.value_or(std::u16string()));
}

void QScrollableArea(const std::u16string& sWorkbookName, const std::u16string& sAction) {
    if (!boolean_option(u"chkT4SetScrollArea", u"0")) return;
    if (sAction == u"SAVE") {
        keep_scroll_areas(sWorkbookName);
    } else {
        set_kept_scroll_areas(sWorkbookName);
    }
}

bool QAlwCreBacBefSav(const std::optional<std::u16string>& sWorkbookName) {
    if (!boolean_option(u"chkT2AlwaysCreateBackupUponSave", u"0")) return true;
    const bool warns = boolean_option(u"chkT2WarnBackupExists", u"0");
    std::u16string folder(trim(text_option(u"txtT2AlwaysCreateBackupUponSave")));
    if (!CFile::FolderExists(folder)) return false;
    if (!folder.ends_with(u'\\') && !folder.ends_with(u'/')) folder += u'\\';
    const std::u16string name = sWorkbookName.value_or(std::u16string());
    const Variant workbook = gExcel.get(names::Workbooks, name);
    if (to_text(workbook.get(names::Path)).empty()) return false;
    const std::u16string backup = folder + CFile::GetFileNameWOExt(name) + u".xlk";
    if (!warns || !CFile::FileExists(backup) || may_replace_backup()) workbook.call(names::SaveCopyAs, backup);
    return true;
}

void QSetSaveFolder() {
    attempt([] {
        if (!boolean_option(u"chkT2DefaultSave", u"0")) return;
        const std::u16string folder(trim(text_option(u"txtT2DefaultSaveFolder")));
        if (!folder.empty()) CDrive::SetCurrDir(folder);
    });
}

}  // namespace qor
