"""The look of the model: one table of cell kinds, and the few ways a sheet is filled."""

from openpyxl.comments import Comment
from openpyxl.styles import Alignment, Border, Font, PatternFill, Side
from openpyxl.worksheet.hyperlink import Hyperlink

NAVY, BLUE, GREY, RED = "1F3A4D", "0000FF", "6B7780", "C00000"
THIN, DOUBLE = Side(style="thin", color=NAVY), Side(style="double", color=NAVY)
HAIR = Side(style="hair", color="B5BEC4")

WHOLE = '#,##0_);(#,##0);"–"_)'
MONEY = '"$"#,##0_);("$"#,##0);"–"_)'
PRICE = '"$"#,##0.00'
PERCENT = "0.0%"
FACTOR = "0.00"
DAY = "d mmm yyyy"
MONTH = "mmm yy"
# Calc shows a boolean without a format as a number now and then; it knows this code as its own boolean format.
BOOLEAN = '"TRUE";"TRUE";"FALSE"'


def fill(color):
    return PatternFill("solid", fgColor=color)


KINDS = {
    "title": {"font": Font(name="Calibri", size=18, bold=True, color=NAVY)},
    "subtitle": {"font": Font(name="Calibri", italic=True, color=GREY)},
    "section": {"font": Font(name="Calibri", bold=True, color=NAVY), "fill": fill("DCE6EC")},
    "heading": {
        "font": Font(name="Calibri", bold=True, color="FFFFFF"),
        "fill": fill(NAVY),
        "alignment": Alignment(horizontal="center", vertical="center", wrap_text=True),
    },
    "label": {"font": Font(name="Calibri")},
    "text": {"font": Font(name="Calibri"), "alignment": Alignment(wrap_text=True, vertical="top")},
    "note": {
        "font": Font(name="Calibri", size=10, italic=True, color=GREY),
        "alignment": Alignment(horizontal="left", indent=1),
    },
    "footnote": {"font": Font(name="Calibri", size=10, italic=True, color=GREY)},
    "input": {
        "font": Font(name="Calibri", color=BLUE),
        "fill": fill("FFF9E5"),
        "border": Border(left=HAIR, right=HAIR, top=HAIR, bottom=HAIR),
        "alignment": Alignment(horizontal="right"),
    },
    "value": {"font": Font(name="Calibri")},
    "centred": {"font": Font(name="Calibri"), "alignment": Alignment(horizontal="center")},
    "subtotal": {"font": Font(name="Calibri", bold=True), "border": Border(top=THIN)},
    "total": {"font": Font(name="Calibri", bold=True), "border": Border(top=THIN, bottom=DOUBLE)},
    "check": {"font": Font(name="Calibri", italic=True, color=GREY)},
    "link": {"font": Font(name="Calibri", underline="single", color="0563C1")},
}


def put(sheet, reference, value, kind="value", number_format=None):
    """Writes one cell in one of KINDS."""
    cell = sheet[reference]
    cell.value = value
    for attribute, look in KINDS[kind].items():
        setattr(cell, attribute, look)
    if number_format:
        cell.number_format = number_format
    return cell


def put_as_text(sheet, reference, text, kind):
    """Writes text behind the text prefix, so that a number or a formula stays text."""
    cell = put(sheet, reference, text, kind, "@")
    cell.data_type = "s"
    cell.quotePrefix = True
    return cell


def put_row(sheet, row, label, columns, formula, kind="value", number_format=WHOLE):
    """Writes a label and the same formula across columns; formula gets a column letter, gives a value."""
    put(sheet, f"B{row}", label, "label" if kind in ("value", "centred") else kind)
    for column in columns:
        put(sheet, f"{column}{row}", formula(column), kind, number_format)


def put_array(sheet, area, formula, kind="value", number_format=WHOLE):
    """Enters one array formula over the whole of area."""
    cells = [cell for line in sheet[area] for cell in line]
    for cell in cells:
        put(sheet, cell.coordinate, None, kind, number_format)
    cells[0].value = formula
    sheet.formula_attributes[cells[0].coordinate] = {"t": "array", "ref": area}


def section(sheet, row, text, columns):
    """Writes a shaded band with its text in the first of columns."""
    for position, column in enumerate(columns):
        put(sheet, f"{column}{row}", text if position == 0 else None, "section")


def headings(sheet, row, texts_by_column):
    for column, text in texts_by_column.items():
        put(sheet, f"{column}{row}", text, "heading")


def remark(sheet, reference, text):
    sheet[reference].comment = Comment(text, "Finance department", height=90, width=260)


def link(sheet, reference, text, target=None, location=None):
    """Inserts a hyperlink: target is an address outside the workbook, location a place in it."""
    put(sheet, reference, text, "link")
    sheet[reference].hyperlink = Hyperlink(ref=reference, target=target, location=location)


def dress(sheet, title, subtitle, widths, landscape, freeze=None, titles=None):
    """Title lines, column widths in characters, and the way the sheet is seen and printed."""
    put(sheet, "B1", title, "title")
    put(sheet, "B2", subtitle, "subtitle")
    sheet.row_dimensions[1].height = 27
    sheet.column_dimensions["A"].width = 2
    for column, width in widths.items():
        sheet.column_dimensions[column].width = width
    sheet.sheet_view.showGridLines = False
    sheet.sheet_view.zoomScale = 90
    sheet.freeze_panes = freeze
    sheet.page_setup.orientation = "landscape" if landscape else "portrait"
    sheet.page_setup.paperSize = sheet.PAPERSIZE_A4
    sheet.page_setup.fitToWidth = 1
    sheet.page_setup.fitToHeight = 0
    sheet.sheet_properties.pageSetUpPr.fitToPage = True
    sheet.page_margins.left = sheet.page_margins.right = 0.5
    sheet.print_options.horizontalCentered = True
    sheet.print_title_rows = titles
    sheet.oddHeader.right.text = "Harbour Lane Roasters"
    sheet.oddFooter.left.text = "&A"
    sheet.oddFooter.right.text = "Page &P of &N"
