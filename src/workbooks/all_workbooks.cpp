#include "workbooks/all_workbooks.hpp"

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

std::vector<Variant> workbooks() {
    return gExcel.get(names::Workbooks).object().items();
}

bool is_add_in(const Variant& workbook) {
    return numbers::file_format::is_add_in(to_long(workbook.get(names::FileFormat)));
}

bool has_file(const Variant& workbook) {
    return !to_text(workbook.get(names::Path)).empty();
}

void save_new(const Variant& workbook) {
    const Variant file = gExcel.call(names::GetSaveAsFilename, named(names::InitialFilename, workbook.get(names::Name)),
                                     named(names::FileFilter, u"Microsoft Excel Workbook (*.xls), *.xls"));
    const auto* answer = file.get_if<bool>();
    if (answer && !*answer) return;
    workbook.call(names::SaveAs, named(names::Filename, file),
                  named(names::FileFormat, numbers::file_format::normal_workbook));
}

}  // namespace

bool saves_before_close() {
    return is_on(option::chkT3AutoSaveB4Close);
}

void close_workbook(const Variant& workbook, bool saves_files) {
    if (is_add_in(workbook)) return;
    if (saves_files && has_file(workbook)) {
        workbook.call(names::Close, named(names::SaveChanges, true));
    } else {
        workbook.call(names::Close);
    }
}

void save_workbook(const Variant& workbook) {
    if (is_add_in(workbook)) return;
    if (!has_file(workbook)) {
        save_new(workbook);
    } else if (!to_boolean(workbook.get(names::Saved))) {
        workbook.call(names::Save);
    }
}

void CloseAllWorkbooks() {
    const bool saves_files = saves_before_close();
    for (const Variant& workbook : workbooks()) close_workbook(workbook, saves_files);
}

void SaveAllWorkbooks() {
    for (const Variant& workbook : workbooks()) save_workbook(workbook);
}

void PrintAllWorksheets() {
    for (const Variant& workbook : workbooks()) {
        for (const Variant& sheet : workbook.get(names::Worksheets).object().items()) sheet.call(names::PrintOut);
    }
}

}  // namespace qor
