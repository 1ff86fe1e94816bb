#pragma once

#include <array>
#include <cstddef>

#include "automation/member_name.hpp"

// The members of the spreadsheet's object model that this product uses, each spelled once. They are constants of the
// compiler: no file that names one runs or holds code for the others.
// clang-format off
#define QOR_MEMBER_NAMES(NAME) \
    NAME(Activate) \
    NAME(ActiveCell) \
    NAME(ActiveChart) \
    NAME(ActiveSheet) \
    NAME(ActiveWindow) \
    NAME(ActiveWorkbook) \
    NAME(Add) \
    NAME(AddItem) \
    NAME(Address) \
    NAME(AddressLocal) \
    NAME(After) \
    NAME(Application) \
    NAME(Areas) \
    NAME(Arrange) \
    NAME(ArrangeStyle) \
    NAME(Before) \
    NAME(BeginGroup) \
    NAME(Bold) \
    NAME(Borders) \
    NAME(BuiltinDocumentProperties) \
    NAME(Calculate) \
    NAME(Caption) \
    NAME(Category) \
    NAME(Cells) \
    NAME(Chart) \
    NAME(ChartObjects) \
    NAME(CheckSpelling) \
    NAME(Clear) \
    NAME(ClearContents) \
    NAME(Close) \
    NAME(Color) \
    NAME(ColorIndex) \
    NAME(Column) \
    NAME(ColumnAbsolute) \
    NAME(Columns) \
    NAME(ColumnWidth) \
    NAME(CommandBars) \
    NAME(Comment) \
    NAME(Comments) \
    NAME(Controls) \
    NAME(ConvertFormula) \
    NAME(Copy) \
    NAME(Count) \
    NAME(CountA) \
    NAME(CustomDocumentProperties) \
    NAME(Default) \
    NAME(Delete) \
    NAME(Description) \
    NAME(Destination) \
    NAME(DisplayAlerts) \
    NAME(DisplayRecentFiles) \
    NAME(DropDownWidth) \
    NAME(EntireColumn) \
    NAME(EntireRow) \
    NAME(FileFilter) \
    NAME(FileFormat) \
    NAME(Filename) \
    NAME(Find) \
    NAME(FindControl) \
    NAME(Font) \
    NAME(FormatConditions) \
    NAME(Formula) \
    NAME(Formula1) \
    NAME(Formula2) \
    NAME(FormulaArray) \
    NAME(FormulaHidden) \
    NAME(FullName) \
    NAME(GetSaveAsFilename) \
    NAME(HasArray) \
    NAME(HasFormula) \
    NAME(HasMenu) \
    NAME(HasShortcutKey) \
    NAME(Height) \
    NAME(Help) \
    NAME(HelpContextID) \
    NAME(HelpFile) \
    NAME(HorizontalAlignment) \
    NAME(Hyperlinks) \
    NAME(Id) \
    NAME(Index) \
    NAME(InitialFilename) \
    NAME(InputBox) \
    NAME(Insert) \
    NAME(Interior) \
    NAME(IsLogical) \
    NAME(Italic) \
    NAME(Item) \
    NAME(Left) \
    NAME(LineStyle) \
    NAME(LinkSource) \
    NAME(LinkToContent) \
    NAME(List) \
    NAME(ListCount) \
    NAME(ListIndex) \
    NAME(Locked) \
    NAME(LookAt) \
    NAME(LookIn) \
    NAME(Macro) \
    NAME(MacroOptions) \
    NAME(Max) \
    NAME(Maximum) \
    NAME(MenuText) \
    NAME(MergeCells) \
    NAME(Move) \
    NAME(Name) \
    NAME(Names) \
    NAME(NumberFormat) \
    NAME(OLEObjects) \
    NAME(OLEType) \
    NAME(OnAction) \
    NAME(Open) \
    NAME(Operator) \
    NAME(Parent) \
    NAME(Password) \
    NAME(Paste) \
    NAME(PasteFace) \
    NAME(PasteSpecial) \
    NAME(Path) \
    NAME(Position) \
    NAME(PrintOut) \
    NAME(Prompt) \
    NAME(Proper) \
    NAME(Protect) \
    NAME(ProtectContents) \
    NAME(ProtectDrawingObjects) \
    NAME(ProtectScenarios) \
    NAME(Range) \
    NAME(ReadOnly) \
    NAME(RecentFiles) \
    NAME(ReferenceStyle) \
    NAME(RefersTo) \
    NAME(RefersToRange) \
    NAME(RelativeTo) \
    NAME(RemoveItem) \
    NAME(Replace) \
    NAME(RoundDown) \
    NAME(Row) \
    NAME(RowAbsolute) \
    NAME(RowHeight) \
    NAME(RowIndex) \
    NAME(Rows) \
    NAME(Save) \
    NAME(SaveAs) \
    NAME(SaveChanges) \
    NAME(SaveCopyAs) \
    NAME(Saved) \
    NAME(ScreenUpdating) \
    NAME(ScrollArea) \
    NAME(SearchDirection) \
    NAME(SearchOrder) \
    NAME(Select) \
    NAME(SelectedSheets) \
    NAME(Selection) \
    NAME(SeriesCollection) \
    NAME(Shapes) \
    NAME(Sheets) \
    NAME(ShortcutKey) \
    NAME(Size) \
    NAME(SourceName) \
    NAME(SpecialCells) \
    NAME(StatusBar) \
    NAME(Tag) \
    NAME(Temporary) \
    NAME(Text) \
    NAME(ThisWorkbook) \
    NAME(Title) \
    NAME(ToolTipText) \
    NAME(Top) \
    NAME(TransitionFormEntry) \
    NAME(Type) \
    NAME(Unprotect) \
    NAME(UsedRange) \
    NAME(UserName) \
    NAME(Value) \
    NAME(Value2) \
    NAME(Version) \
    NAME(Visible) \
    NAME(Weight) \
    NAME(What) \
    NAME(Width) \
    NAME(Window) \
    NAME(Windows) \
    NAME(Workbooks) \
    NAME(Worksheet) \
    NAME(WorksheetFunction) \
    NAME(Worksheets) \
    NAME(WrapText)
// clang-format on

namespace qor::names {

#define QOR_NUMBER(name) name,
enum class Number : std::size_t { QOR_MEMBER_NAMES(QOR_NUMBER) };
#undef QOR_NUMBER

#define QOR_NAME(name) \
    inline constexpr MemberName name = MemberName::spelled(u"" #name, static_cast<std::size_t>(Number::name));
QOR_MEMBER_NAMES(QOR_NAME)
#undef QOR_NAME

#define QOR_NAME(name) name,
inline constexpr std::array all{QOR_MEMBER_NAMES(QOR_NAME)};
#undef QOR_NAME

}  // namespace qor::names
