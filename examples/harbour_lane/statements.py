"""P&L by quarter and year, and the balance sheet with the cash bridge that makes it balance."""

from openpyxl.formatting.rule import CellIsRule
from openpyxl.styles import Font

from .inputs import name_range
from .style import DAY, MONEY, PERCENT, RED, WHOLE, dress, fill, headings, put, put_row, remark, section

QUARTERS = ["C", "D", "E", "F", "H", "I", "J", "K"]
YEARS = {"G": "C{0}:F{0}", "L": "H{0}:K{0}"}
INCOME_SPAN = ["B", *QUARTERS[:4], "G", *QUARTERS[4:], "L"]
OPENING, CLOSINGS = "C", ["D", "E"]
DATES = [OPENING, *CLOSINGS]


def in_quarter(values, dates):
    return lambda c: f'=SUMIFS({values},{dates},">="&{c}$6,{dates},"<="&{c}$7)'


def from_sales(row):
    return in_quarter(f"Sales!$C${row}:$Z${row}", "SalesMonths")


def put_quarters(sheet):
    for position, column in enumerate(QUARTERS):
        start = "=FirstMonth" if position == 0 else f"=EDATE({QUARTERS[position - 1]}6,3)"
        put(sheet, f"{column}5", f'="Q"&ROUNDUP(MONTH({column}6)/3,0)&" "&YEAR({column}6)', "heading")
        put(sheet, f"{column}6", start, "check", DAY)
        put(sheet, f"{column}7", f"=EOMONTH({column}6,2)", "check", DAY)
        put(sheet, f"{column}8", position + 1 if position == 0 else f"={QUARTERS[position - 1]}8+1", "check", "0")
    headings(sheet, 5, {"B": "US dollars", "G": '="FY "&YEAR(C6)', "L": '="FY "&YEAR(H6)'})
    for row, label in enumerate(["From", "To", "Quarter number"], 6):
        put(sheet, f"B{row}", label, "check")


def income_lines(sales):
    """Label, key, kind and formula of a quarter; None where the band over the operating costs stands."""
    return [
        ("Gross sales", "gross", "value", from_sales(sales["gross"])),
        ("Returns and allowances", "returns", "value", from_sales(sales["returns"])),
        ("Net sales", "net", "subtotal", "={c}{gross}+{c}{returns}"),
        ("Cost of goods sold", "cost", "value", from_sales(sales["cost"])),
        ("Gross profit", "profit", "subtotal", "={c}{net}-{c}{cost}"),
        None,
        ("Office salaries", "salaries", "value", "=3*SalariesPerMonth"),
        ("Officer salaries", "officer", "value", "=3*OfficerPerMonth"),
        ("Employee benefits", "benefits", "value", "=({c}{salaries}+{c}{officer})*BenefitShare"),
        ("Marketing", "marketing", "value", "={c}{net}*MarketingShare"),
        ("Rent", "rent", "value", "=3*RentPerMonth"),
        ("Repairs", "repairs", "value", "=3*RepairsPerMonth"),
        ("Bad debts", "bad", "value", "={c}{net}*BadDebtShare"),
        ("Depreciation", "depreciation", "value",
         "=(OpeningFixedAssets+CapexPerYear/4*({c}$8-1))/(UsefulLife*4)"),
        ("Operating costs", "costs", "subtotal", "=SUM({c}{salaries}:{c}{depreciation})"),
        ("Operating profit", "operating", "subtotal", "={c}{profit}-{c}{costs}"),
        ("Interest on the loan", "interest", "value", in_quarter("LoanInterest", "LoanDates")),
        ("Profit before tax", "before", "subtotal", "={c}{operating}-{c}{interest}"),
        ("Income tax", "tax", "value", "=MAX(0,{c}{before})*TaxRate"),
        ("Net income", "income", "total", "={c}{before}-{c}{tax}"),
    ]


def build_income(sheet, sales):
    """Gives the rows of the lines, by key."""
    dress(sheet, "Income statement", "By quarter and financial year",
          {"B": 25, **{column: 12.5 for column in INCOME_SPAN[1:]}}, landscape=True, freeze="C9", titles="$1:$8")
    put_quarters(sheet)
    lines = income_lines(sales)
    rows = {line[1]: row for row, line in enumerate(lines, 10) if line}
    for row, line in enumerate(lines, 10):
        if not line:
            section(sheet, row, "Operating costs", INCOME_SPAN)
            continue
        label, _, kind, formula = line
        number_format = MONEY if kind == "total" else WHOLE
        put_row(sheet, row, label, QUARTERS, formula if callable(formula) else lambda c: formula.format(c=c, **rows),
                kind, number_format)
        for column, quarters in YEARS.items():
            cell = put(sheet, f"{column}{row}", f"=SUM({quarters.format(row)})", kind, number_format)
            cell.fill = fill("EEF3F6")
    last = max(rows.values())
    for row, (label, key) in enumerate([("Gross margin", "profit"), ("Net margin", "income")], last + 2):
        put_row(sheet, row, label, INCOME_SPAN[1:], lambda c: f"={c}{rows[key]}/{c}{rows['net']}", "check", PERCENT)
    section(sheet, 9, "Sales", INCOME_SPAN)
    remark(sheet, f"B{rows['tax']}", "A quarter with a loss bears no tax and earns no credit.")
    remark(sheet, f"B{rows['depreciation']}", "Straight line; additions count from the quarter after they are bought.")
    sheet.print_area = f"A1:L{last + 3}"
    return rows


def balance_lines():
    """Label, key, kind, opening formula and closing formula. {p} is the column before, {y} the year on P&L."""
    year = "'P&L'!{y}"
    return [
        "Assets",
        ("Cash", "cash", "value", "=OpeningCash", "={c}{closing}"),
        ("Accounts receivable", "receivable", "value", "=OpeningReceivable", f"={year}{{i_net}}*DaysReceivable/365"),
        ("Inventory", "inventory", "value", "=OpeningInventory", f"={year}{{i_cost}}*DaysInventory/365"),
        ("Deferred charges", "deferred", "value", "=OpeningDeferred", "=RentPerMonth"),
        ("Current assets", "current", "subtotal", *["=SUM({c}{cash}:{c}{deferred})"] * 2),
        ("Net fixed assets", "fixed", "value", "=OpeningFixedAssets",
         f"={{p}}{{fixed}}+CapexPerYear-{year}{{i_depreciation}}"),
        ("Total assets", "assets", "total", *["={c}{current}+{c}{fixed}"] * 2),
        "Liabilities",
        ("Accounts payable", "payable", "value", "=OpeningPayable", f"={year}{{i_cost}}*DaysPayable/365"),
        ("Income tax payable", "owed", "value", "=OpeningTax", "='P&L'!{q}{i_tax}"),
        ("Loan due within a year", "due", "value", "=OpeningLoanDue",
         '=SUMIFS(LoanPrincipal,LoanDates,">"&{c}$5,LoanDates,"<="&EDATE({c}$5,12))'),
        ("Current liabilities", "short", "subtotal", *["=SUM({c}{payable}:{c}{due})"] * 2),
        ("Loan due later", "long", "value", "=OpeningLoanLater",
         '=SUMIFS(LoanPrincipal,LoanDates,">"&EDATE({c}$5,12))'),
        ("Total liabilities", "liabilities", "subtotal", *["={c}{short}+{c}{long}"] * 2),
        "Equity",
        ("Share capital", "capital", "value", *["=ShareCapital"] * 2),
        ("Retained earnings", "retained", "value", "=OpeningRetained",
         f"={{p}}{{retained}}+{year}{{i_income}}+{{c}}{{dividend}}"),
        ("Total equity", "equity", "subtotal", *["={c}{capital}+{c}{retained}"] * 2),
        ("Liabilities and equity", "both", "total", *["={c}{liabilities}+{c}{equity}"] * 2),
        ("Check: difference", "check", "check", *["=ROUND({c}{assets}-{c}{both},2)"] * 2),
        "Cash bridge",
        ("Opening cash", "opening", "value", None, "={p}{cash}"),
        ("Net income", "earned", "value", None, f"={year}{{i_income}}"),
        ("Depreciation", "added", "value", None, f"={year}{{i_depreciation}}"),
        ("Change of receivables", "d_receivable", "value", None, "={p}{receivable}-{c}{receivable}"),
        ("Change of inventory", "d_inventory", "value", None, "={p}{inventory}-{c}{inventory}"),
        ("Change of deferred charges", "d_deferred", "value", None, "={p}{deferred}-{c}{deferred}"),
        ("Change of payables and tax", "d_payable", "value", None,
         "=SUM({c}{payable}:{c}{owed})-SUM({p}{payable}:{p}{owed})"),
        ("Capital expenditure", "capex", "value", None, "=-CapexPerYear"),
        ("Loan drawn less repaid", "d_loan", "value", None, "={c}{due}+{c}{long}-{p}{due}-{p}{long}"),
        ("Dividend", "dividend", "value", None, f"=-MAX(0,{year}{{i_income}})*PayoutShare"),
        ("Closing cash", "closing", "total", None, "=SUM({c}{opening}:{c}{dividend})"),
    ]


def build_balance(sheet, income):
    """Gives the rows of the lines, by key."""
    dress(sheet, "Balance sheet", "At the beginning of the model and at each year end",
          {"B": 30, **{column: 16 for column in DATES}, "F": 3, "G": 24}, landscape=False, freeze="C6", titles="$1:$5")
    headings(sheet, 5, {"B": "US dollars", "C": "=FirstMonth-1", "D": "=EOMONTH(C5,12)", "E": "=EOMONTH(D5,12)"})
    for column in DATES:
        sheet[f"{column}5"].number_format = DAY
    lines = balance_lines()
    rows = {line[1]: row for row, line in enumerate(lines, 6) if isinstance(line, tuple)}
    keys = {**rows, **{f"i_{key}": row for key, row in income.items()}}
    for row, line in enumerate(lines, 6):
        if isinstance(line, str):
            section(sheet, row, line, ["B", *DATES])
            continue
        label, _, kind, opening, closing = line
        number_format = MONEY if kind == "total" else WHOLE
        put(sheet, f"B{row}", label, "label" if kind == "value" else kind)
        put(sheet, f"C{row}", opening and opening.format(c="C", **keys), kind, number_format)
        for column, before, year, quarter in zip(CLOSINGS, DATES, YEARS, ["F", "K"]):
            put(sheet, f"{column}{row}", closing.format(c=column, p=before, y=year, q=quarter, **keys), kind,
                number_format)
    check = rows["check"]
    put(sheet, f"G{check}", f'=IF(SUMPRODUCT(ABS(C{check}:E{check}))<0.005,"Balanced","Out of balance")', "check")
    name_range(sheet, "BalanceCheck", f"$G${check}")
    sheet.conditional_formatting.add(f"C{check}:E{check}", CellIsRule(
        operator="notEqual", formula=["0"], font=Font(color=RED, bold=True)))
    remark(sheet, f"B{check}", "Must be nil in every column.")
    remark(sheet, f"B{rows['deferred']}", "One month of rent is always paid ahead.")
    sheet.print_area = f"A1:G{max(rows.values())}"
    return rows
