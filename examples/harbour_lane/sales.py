"""Sales: 24 months by product, from units and prices to net sales and the cost of goods."""

from openpyxl.utils import get_column_letter

from .inputs import PRODUCTS, name_range
from .style import FACTOR, MONEY, MONTH, PRICE, WHOLE, dress, headings, put, put_row, remark, section

MONTHS = [get_column_letter(number) for number in range(3, 27)]
FIRST, LAST = MONTHS[0], MONTHS[-1]
YEARS = ["AA", "AB"]
SPAN = ["B", *MONTHS, *YEARS]


def before(column):
    return MONTHS[MONTHS.index(column) - 1]


def year_total(row):
    """The total of a month row for the year that stands in row 4 of the column."""
    return lambda column: f"=SUMPRODUCT((YEAR(${FIRST}$5:${LAST}$5)={column}$4)*${FIRST}{row}:${LAST}{row})"


def put_block(sheet, row, title, formula, number_format, totalled=True):
    """One line a product; formula gets the column and the position of the product."""
    section(sheet, row, title, SPAN)
    for position, product in enumerate(PRODUCTS):
        line = row + 1 + position
        put_row(sheet, line, product[0], MONTHS, lambda column: formula(column, position), "value", number_format)
        if totalled:
            put_row(sheet, line, product[0], YEARS, year_total(line), "value", number_format)
    return row + 1


def put_total(sheet, row, label, formula, kind="subtotal"):
    put_row(sheet, row, label, MONTHS, formula, kind, MONEY)
    put_row(sheet, row, label, YEARS, year_total(row), kind, MONEY)


def put_timeline(sheet):
    put_row(sheet, 4, "Month number", MONTHS, lambda c: 1 if c == FIRST else f"={before(c)}4+1", "check", "0")
    put(sheet, "AA4", "=YEAR(FirstMonth)", "check", "0")
    put(sheet, "AB4", "=AA4+1", "check", "0")
    put_row(sheet, 5, "Month", MONTHS, lambda c: "=FirstMonth" if c == FIRST else f"=EDATE({before(c)}5,1)",
            "heading", MONTH)
    headings(sheet, 5, {column: f'="FY "&{column}4' for column in YEARS})
    put_row(sheet, 6, "Season", MONTHS, lambda c: f"=INDEX(SeasonFactors,MONTH({c}5))", "value", FACTOR)
    put_row(sheet, 7, "Year end", MONTHS, lambda c: f'=IF(MONTH({c}5)=12,"Year end","")', "centred")
    name_range(sheet, "SalesMonths", f"${FIRST}$5:${LAST}$5")
    remark(sheet, "C5", "The first month comes from Inputs; each next one is a calendar month later.")
    remark(sheet, "AA5", "Totals of the calendar year in the line above.")


def build(sheet, first_product):
    """Gives the rows that other sheets read, by name."""
    dress(sheet, "Sales", "Units, prices and sales by product and month",
          {"B": 27, **{column: 9.5 for column in MONTHS}, **{column: 12.5 for column in YEARS}},
          landscape=True, freeze="C6", titles="$1:$5")
    sheet.print_title_cols = "$A:$B"
    sheet.page_setup.fitToWidth = 2
    put_timeline(sheet)
    count = len(PRODUCTS)

    def entry(column, position):
        return f"Inputs!${column}${first_product + position}"

    units = put_block(sheet, 9, "Units", lambda c, p: (
        f"=ROUND({entry('C', p)}*(1+{entry('D', p)})^({c}$4-1)*{c}$6*(1+ScenarioUplift),0)"), WHOLE)
    price = put_block(sheet, units + count + 1, "Price", lambda c, p: (
        f"={entry('E', p)}*IF(AND(ApplyPriceRise,YEAR({c}$5)>YEAR(FirstMonth)),1+PriceRise,1)"), PRICE, totalled=False)
    sales = put_block(sheet, price + count + 1, "Sales", lambda c, p: f"={c}{units + p}*{c}{price + p}", MONEY)
    gross = sales + count
    put_total(sheet, gross, "Gross sales", lambda c: f"=SUM({c}{sales}:{c}{gross - 1})")
    put_total(sheet, gross + 1, "Returns and allowances", lambda c: f"=-{c}{gross}*ReturnShare", "value")
    put_total(sheet, gross + 2, "Net sales", lambda c: f"={c}{gross}+{c}{gross + 1}", "total")
    cost = put_block(sheet, gross + 4, "Cost of goods", lambda c, p: f"={c}{units + p}*{entry('F', p)}", MONEY)
    put_total(sheet, cost + count, "Cost of goods sold", lambda c: f"=SUM({c}{cost}:{c}{cost + count - 1})", "total")
    remark(sheet, f"B{gross + 1}", "Shown as a deduction.")
    sheet.print_area = f"A1:AB{cost + count}"
    return {"gross": gross, "returns": gross + 1, "net": gross + 2, "cost": cost + count}
