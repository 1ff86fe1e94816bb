"""Ratios: the worksheet functions of the add-in at work on the two years of the model."""

from openpyxl.formatting.rule import CellIsRule
from openpyxl.styles import Font

from .style import PERCENT, RED, dress, headings, put, put_as_text, remark, section

SPAN = "BCDEFGH"
# column -> (begin column of the balance sheet, end column, year column of the income statement)
YEARS = {"D": ("C", "D", "G"), "E": ("D", "E", "L")}

# label, function, arguments, decimal places (None: the function's own four), limit above which the ratio is reviewed
# b: balance at the beginning, e: at the end, y: of the year
GROUPS = [
    ("Working capital", [
        ("Receivables to assets", "ARA", "e.receivable e.assets", None, None),
        ("Receivables to equity", "ARE", "e.receivable e.equity", 2, None),
        ("Receivables to net sales", "ARNS", "b.receivable e.receivable y.net", None, 0.1),
        ("Inventory to assets", "IA", "e.inventory e.assets", None, None),
        ("Inventory to equity", "IE", "e.inventory e.equity", 3, None),
        ("Inventory to net sales", "INS", "b.inventory e.inventory y.net", 6, 0.1),
        ("Bad debts to receivables", "BDAR", "y.bad b.receivable e.receivable", None, 0.07),
        ("Bad debts to net sales", "BDNS", "y.bad y.net", 3, 0.01),
        ("Deferred charges to assets", "DCA", "e.deferred e.assets", None, None),
    ]),
    ("Financing", [
        ("Equity to assets", "EA", "e.equity e.assets", None, None),
        ("Liabilities to assets", "LA", "e.liabilities e.assets", None, 0.5),
        ("Liabilities to equity", "LE", "e.liabilities e.equity", 2, 1),
        ("Current liabilities to equity", "CLE", "e.short e.equity", None, 0.25),
        ("Current liabilities to net sales", "CLNS", "b.short e.short y.net", 5, None),
        ("Long-term liabilities to net sales", "LTNS", "b.long e.long y.net", None, None),
        ("Retained earnings to assets", "REA", "e.retained e.assets", 2, None),
    ]),
    ("Plant", [
        ("Net fixed assets to assets", "NFAA", "e.fixed e.assets", None, None),
        ("Net fixed assets to equity", "NFAE", "e.fixed e.equity", 2, None),
        ("Net fixed assets to long-term liabilities", "NFALTL", "e.fixed e.long", None, None),
        ("Net fixed assets to net sales", "NFANS", "b.fixed e.fixed y.net", 6, None),
        ("Repairs to net fixed assets", "RPRNFA", "y.repairs b.fixed e.fixed", None, 0.05),
        ("Repairs to net sales", "RPRNS", "y.repairs y.net", None, None),
        ("Depreciation to net sales", "DNS", "y.depreciation y.net", 3, None),
    ]),
    ("Costs", [
        ("Administration to net sales", "AGNS", "y.salaries y.net", None, 0.2),
        ("Officer salaries to net sales", "OSNS", "y.officer y.net", None, None),
        ("Fringe benefit rate", "FBR", "y.benefits y.salaries", 3, None),
        ("Marketing to net sales", "MNS", "y.marketing y.net", None, None),
        ("Rent to net sales", "RNTLNS", "y.rent y.net", 2, None),
        ("Interest to net sales", "IENS", "y.interest y.net", 6, 0.005),
    ]),
]


def call(function, arguments, places, year, balance, income):
    begin, end, flow = YEARS[year]
    references = []
    for argument in arguments.split():
        when, key = argument.split(".")
        references.append({"b": lambda: f"Balance!{begin}{balance[key]}", "e": lambda: f"Balance!{end}{balance[key]}",
                           "y": lambda: f"'P&L'!{flow}{income[key]}"}[when]())
    if places is not None:
        references.append(str(places))
    return f"_xll.{function}({','.join(references)})"


def put_ratio(sheet, row, line, balance, income):
    label, function, arguments, places, limit = line
    decimals = "0" * (4 if places is None else places)
    number_format = f"0.{decimals}" if decimals else "0"
    put(sheet, f"B{row}", label, "label")
    put(sheet, f"C{row}", function, "centred")
    for column in YEARS:
        put(sheet, f"{column}{row}", "=" + call(function, arguments, places, column, balance, income), "value",
            number_format)
    put(sheet, f"F{row}", f"=E{row}-D{row}", "value", f"+{number_format};-{number_format};{number_format}")
    if limit is not None:
        put(sheet, f"G{row}", limit, "input", "0.000")
        put(sheet, f"H{row}", f'=IF(MAX(D{row}:E{row})>G{row},"Review","")', "centred")


def put_derived(sheet, row, balance, income):
    """Ratios taken further: inside a longer formula, and beside the same sum without the function."""
    section(sheet, row, "Taken further", SPAN)
    lines = [
        ("Days of sales in receivables", "ARNS", "b.receivable e.receivable y.net", 6, "=ROUND({call}*365,1)", "0.0"),
        ("Debt carried by a dollar of equity", "LE", "e.liabilities e.equity", None,
         '=IF({call}>1,"More debt","More equity")', "General"),
        ("Administration and officers", "AGNS", "y.salaries y.net", None, "={call}+{officer}", PERCENT),
        ("Shares of equity and liabilities add up", "EA", "e.equity e.assets", 6, "=ROUND({call}+{debt},4)=1",
         "General"),
    ]
    for row, (label, function, arguments, places, formula, number_format) in enumerate(lines, row + 1):
        put(sheet, f"B{row}", label, "label")
        put(sheet, f"C{row}", function, "centred")
        for column in YEARS:
            text = formula.format(
                call=call(function, arguments, places, column, balance, income),
                officer=call("OSNS", "y.officer y.net", None, column, balance, income),
                debt=call("LA", "e.liabilities e.assets", 6, column, balance, income))
            cell = put(sheet, f"{column}{row}", text, "value", number_format)
            cell.alignment = cell.alignment.copy(horizontal="right")
    return row


def build(sheet, balance, income):
    dress(sheet, "Ratios", "Fractions, not percentages; rounded by the function to the decimal places it is given",
          {"B": 38, "C": 12, "D": 13, "E": 13, "F": 13, "G": 11, "H": 12}, landscape=False, freeze="D5", titles="$4:$4")
    headings(sheet, 4, {"B": "Ratio", "C": "Function", "D": "='P&L'!G5", "E": "='P&L'!L5", "F": "Change",
                        "G": "Limit", "H": "Flag"})
    row = 5
    for title, lines in GROUPS:
        section(sheet, row, title, SPAN)
        for row, line in enumerate(lines, row + 1):
            put_ratio(sheet, row, line, balance, income)
        row += 1
    last = put_derived(sheet, row, balance, income)
    put_as_text(sheet, f"B{last + 2}", "=ARNS(begin, end, net sales) averages the two balances", "footnote")
    sheet.conditional_formatting.add(f"H5:H{last}", CellIsRule(
        operator="equal", formula=['"Review"'], font=Font(color=RED, bold=True)))
    remark(sheet, "C4", "The functions of the add-in. Without it these cells show a name error.")
    remark(sheet, "G4", "Chosen by the board; a ratio above its limit is looked at.")
    sheet.print_area = f"A1:H{last + 2}"
