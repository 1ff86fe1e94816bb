"""Loan: the terms, the schedule of 48 payments and its totals by year."""

from .inputs import name_range
from .style import DAY, MONEY, PRICE, dress, headings, put, put_array, put_row, remark

FIRST, LAST = 13, 60


def put_terms(sheet):
    headings(sheet, 4, {"B": "Terms", "C": None})
    terms = [
        ("Amount", "=LoanAmount", MONEY),
        ("Interest a year", "=LoanRate", "0.00%"),
        ("Months", "=LoanMonths", "0"),
        ("First payment", "=FirstPayment", DAY),
        ("Last payment", "=EDATE(FirstPayment,LoanMonths-1)", DAY),
        ("Payment a month", "=-PMT(LoanRate/12,LoanMonths,LoanAmount)", PRICE),
    ]
    for row, (label, formula, number_format) in enumerate(terms, 5):
        put(sheet, f"B{row}", label, "label")
        put(sheet, f"C{row}", formula, "value", number_format)
    remark(sheet, "C10", "Level payment on the first day of each month.")


def put_schedule(sheet):
    headings(sheet, FIRST - 1, dict(zip("BCDEFG", ["Payment", "Date", "Opening", "Interest", "Principal", "Closing"])))
    for row in range(FIRST, LAST + 1):
        put(sheet, f"B{row}", 1 if row == FIRST else f"=B{row - 1}+1", "centred", "0")
        put(sheet, f"C{row}", f"=EDATE(FirstPayment,B{row}-1)", "centred", DAY)
        put(sheet, f"D{row}", "=LoanAmount" if row == FIRST else f"=G{row - 1}", "value", MONEY)
        put(sheet, f"E{row}", f"=D{row}*LoanRate/12", "value", MONEY)
        put(sheet, f"G{row}", f"=D{row}-F{row}", "value", MONEY)
    put_array(sheet, f"F{FIRST}:F{LAST}", f"=PPMT(LoanRate/12,B{FIRST}:B{LAST},LoanMonths,-LoanAmount)",
              number_format=MONEY)
    put_row(sheet, LAST + 1, "Total", "EF", lambda c: f"=SUM({c}{FIRST}:{c}{LAST})", "total", MONEY)
    for column in "CDG":
        put(sheet, f"{column}{LAST + 1}", None, "total")
    for name, column in {"LoanDates": "C", "LoanInterest": "E", "LoanPrincipal": "F"}.items():
        name_range(sheet, name, f"${column}${FIRST}:${column}${LAST}")
    remark(sheet, f"F{FIRST}", "One array formula fills the whole column.")


def put_years(sheet):
    headings(sheet, 4, dict(zip("IJKL", ["Year", "Interest", "Principal", "Payments"])))
    for row in range(5, 10):
        put(sheet, f"I{row}", "=YEAR(FirstMonth)" if row == 5 else f"=I{row - 1}+1", "centred", "0")
        for column, name in {"J": "LoanInterest", "K": "LoanPrincipal"}.items():
            put(sheet, f"{column}{row}", f"=SUMPRODUCT((YEAR(LoanDates)=$I{row})*{name})", "value", MONEY)
    put_array(sheet, "L5:L9", "=FREQUENCY(YEAR(LoanDates),I5:I9)", "centred", "0")
    put(sheet, "I10", "Total", "total")
    for column, number_format in {"J": MONEY, "K": MONEY, "L": "0"}.items():
        put(sheet, f"{column}10", f"=SUM({column}5:{column}9)", "total", number_format)
    sheet["L10"].alignment = sheet["L9"].alignment.copy()


def build(sheet):
    dress(sheet, "Loan", "Equipment loan: level monthly payments",
          {"B": 17, **{column: 13 for column in "CDEFG"}, "H": 3, **{column: 12 for column in "IJKL"}},
          landscape=False, freeze=f"A{FIRST}", titles=f"${FIRST - 1}:${FIRST - 1}")
    put_terms(sheet)
    put_schedule(sheet)
    put_years(sheet)
    sheet.print_area = f"A1:L{LAST + 1}"
