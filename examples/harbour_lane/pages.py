"""Cover, Notes and Archive: the sheets around the calculation."""

import datetime

from openpyxl.chart import LineChart, Reference
from openpyxl.styles import Alignment

from .style import (BOOLEAN, DAY, MONEY, MONTH, PERCENT, WHOLE, dress, headings, link, put, put_as_text, remark,
                    section)

CONTENTS = [
    ("Inputs", "Assumptions, products, scenarios and opening balances"),
    ("Sales", "Units, prices and sales of 24 months"),
    ("P&L", "Income statement by quarter and year"),
    ("Balance", "Balance sheet and cash bridge"),
    ("Ratios", "Common-size ratios by the add-in's functions"),
    ("Loan", "Schedule of the equipment loan"),
    ("Notes", "Rules of the model and where to ask"),
]


def put_key_figures(sheet, row, balance, income):
    headings(sheet, row, {"B": "Key figures", "C": "='P&L'!G5", "D": "='P&L'!L5", "E": "Growth"})
    lines = [("Net sales", "'P&L'!{0}%d" % income["net"], "GL"), ("Net income", "'P&L'!{0}%d" % income["income"], "GL"),
             ("Cash at year end", "Balance!{0}%d" % balance["cash"], "DE"),
             ("Total assets", "Balance!{0}%d" % balance["assets"], "DE")]
    for row, (label, reference, columns) in enumerate(lines, row + 1):
        put(sheet, f"B{row}", label, "label")
        for column, source in zip("CD", columns):
            put(sheet, f"{column}{row}", "=" + reference.format(source), "value", MONEY)
        put(sheet, f"E{row}", f"=IF(C{row}=0,\"\",D{row}/C{row}-1)", "value", PERCENT)
    return row + 1


def put_chart(sheet, anchor, sales_sheet, net_sales):
    chart = LineChart()
    chart.title = "Net sales by month"
    chart.add_data(Reference(sales_sheet, min_col=2, max_col=26, min_row=net_sales), from_rows=True,
                   titles_from_data=True)
    chart.set_categories(Reference(sales_sheet, min_col=3, max_col=26, min_row=5))
    chart.legend = None
    chart.x_axis.number_format = MONTH
    chart.y_axis.number_format = '"$"#,##0'
    chart.x_axis.tickLblSkip = 3
    chart.series[0].graphicalProperties.line.solidFill = "1F3A4D"
    chart.series[0].smooth = False
    chart.width, chart.height = 20.3, 7.5
    sheet.add_chart(chart, anchor)


def build_cover(sheet, sales_sheet, sales, income, balance):
    dress(sheet, "=CompanyName", "Two-year financial model", {"B": 24, "C": 20, "D": 20, "E": 20},
          landscape=False)
    sheet.merge_cells("B1:E1")
    sheet["B1"].alignment = Alignment(horizontal="center")
    sheet.merge_cells("B2:E2")
    sheet["B2"].alignment = Alignment(horizontal="center")
    facts = [("Version", 1.2, "0.0"), ("Date", datetime.date(2024, 1, 15), DAY), ("Status", "For the board", None),
             ("Audited", False, BOOLEAN)]
    for row, (label, value, number_format) in enumerate(facts, 4):
        put(sheet, f"B{row}", label, "label")
        put(sheet, f"C{row}", value, "input", number_format)
    put(sheet, "B8", "Scenario in use", "label")
    put(sheet, "C8", "=Scenario", "value").alignment = Alignment(horizontal="right")
    put(sheet, "B9", "Model check", "label")
    put(sheet, "C9", "=BalanceCheck", "value").alignment = Alignment(horizontal="right")
    remark(sheet, "C4", "Raise the version with every change of a formula.")

    section(sheet, 11, "Contents", "BCDE")
    for row, (name, about) in enumerate(CONTENTS, 12):
        link(sheet, f"B{row}", name, location=f"'{name}'!A1")
        put(sheet, f"C{row}", about, "label")

    section(sheet, 20, "Result", "BCDE")
    row = put_key_figures(sheet, 21, balance, income)
    put_chart(sheet, f"B{row + 1}", sales_sheet, sales["net"])
    sheet.print_area = f"A1:E{row + 17}"


def build_notes(sheet):
    dress(sheet, "Notes", "This sheet is locked; the other sheets are open.", {"B": 30, "C": 62}, landscape=False)
    section(sheet, 4, "Rules", "BC")
    rules = [
        ("Colours", "Blue on a pale ground is entered, black is calculated."),
        ("Signs", "Costs are positive on P&L; on the cash bridge what leaves is negative."),
        ("Rounding", "Nothing is rounded but units, ratios and the balance check."),
        ("Dates", "Interest is charged by the month, tax is paid in the quarter after it falls due."),
        ("Currency", "All amounts are in US dollars."),
    ]
    for row, (label, text) in enumerate(rules, 5):
        put(sheet, f"B{row}", label, "text")
        put(sheet, f"C{row}", text, "text")
    section(sheet, 11, "Formulas in words", "BC")
    formulas = [("Net sales", "=gross sales less returns"), ("Closing balance of the loan", "=opening less principal")]
    for row, (label, text) in enumerate(formulas, 12):
        put(sheet, f"B{row}", label, "label")
        put_as_text(sheet, f"C{row}", text, "label")
    section(sheet, 15, "Where to look", "BC")
    links = [
        ("Accounting handbook", {"target": "https://www.example.com/handbook"}, "Policies behind the assumptions"),
        ("Coffee price index", {"target": "https://www.example.com/prices?product=coffee&year=2024"},
         "Source of the unit costs"),
        ("Ask the finance department", {"target": "mailto:finance@example.com"}, "Answers within a working day"),
        ("Assumptions", {"location": "'Inputs'!B6"}, "The first month of the model"),
        ("Tax line", {"location": "'P&L'!B28"}, "Where the income tax is worked out"),
    ]
    for row, (text, place, about) in enumerate(links, 16):
        link(sheet, f"B{row}", text, **place)
        put(sheet, f"C{row}", about, "label")
    put(sheet, "B22", "Reviewed on", "label")
    put(sheet, "C22", datetime.date(2024, 1, 12), "value", DAY).alignment = Alignment(horizontal="left")
    put(sheet, "B23", "Next review", "label")
    put(sheet, "C23", "=EDATE(C22,12)", "value", DAY).alignment = Alignment(horizontal="left")
    sheet.print_area = "A1:C23"
    sheet.protection.sheet = sheet.protection.objects = sheet.protection.scenarios = True


# net sales and orders of the 24 months before the model; the shop was closed for a refit in August 2022
PAST = [(88240, 1412), (90110, 1437), (93560, 1490), (94120, 1502), (96870, 1541), (95430, 1528), (92310, 1476), (0, 0),
        (97640, 1560), (101280, 1612), (106450, 1690), (109330, 1733), (96720, 1498), (98950, 1526), (102310, 1574),
        (103480, 1590), (105760, 1622), (104690, 1609), (101550, 1563), (100240, 1547), (106930, 1640), (111470, 1705),
        (117020, 1786), (120360, 1834)]


def build_archive(sheet):
    dress(sheet, "Archive", "Booked net sales and orders before the model; figures only",
          {"B": 12, "C": 14, "D": 12}, landscape=False, freeze="A5", titles="$4:$4")
    headings(sheet, 4, {"B": "Month", "C": "Net sales", "D": "Orders"})
    for position, (sales, orders) in enumerate(PAST):
        row = 5 + position
        month = datetime.date(2022 + position // 12, position % 12 + 1, 1)
        put(sheet, f"B{row}", month, "centred", MONTH)
        put(sheet, f"C{row}", sales, "value", WHOLE)
        put(sheet, f"D{row}", orders, "value", WHOLE)
    remark(sheet, "C12", "Closed for a refit.")
    sheet.sheet_state = "hidden"
