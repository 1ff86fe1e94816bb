"""Inputs: every assumption of the model, each with a name that the other sheets use."""

import datetime

from openpyxl.workbook.defined_name import DefinedName
from openpyxl.worksheet.datavalidation import DataValidation

from .style import (BOOLEAN, DAY, FACTOR, MONEY, PERCENT, PRICE, WHOLE, dress, headings, put, put_as_text, remark,
                    section)

COLUMNS = "BCDEFG"

PRODUCTS = [
    # units a month, growth a month, price, unit cost
    ("Espresso blend, 1 kg", 2400, 0.008, 24.0, 10.8),
    ("Single origin, 1 kg", 950, 0.012, 31.0, 15.2),
    ("Decaffeinated, 1 kg", 420, 0.005, 26.5, 12.4),
    ("Brewing set", 110, 0, 148.0, 96.0),
]
SCENARIOS = [("Low", -0.08), ("Base", 0), ("High", 0.06)]
SEASON = [0.92, 0.94, 0.97, 0.98, 1.0, 0.99, 0.96, 0.95, 1.01, 1.05, 1.1, 1.13]

# label, defined name, value, number format, unit, note
BLOCKS = [
    ("General", [
        ("Company", "CompanyName", "Harbour Lane Roasters", None, "", ""),
        ("First month", "FirstMonth", datetime.date(2024, 1, 1), DAY, "date", "The model runs for 24 months"),
        ("Currency", "CurrencyCode", "USD", None, "", ""),
        ("Cost centre", "CostCentre", "00417", "text", "", "Text: the leading zeros belong to the number"),
        ("Scenario", "Scenario", "Base", None, "", "Low, Base or High"),
        ("Price rise in the second year", "ApplyPriceRise", True, BOOLEAN, "yes/no", ""),
        ("Size of the price rise", "PriceRise", 0.035, PERCENT, "of price", ""),
        ("Returns and allowances", "ReturnShare", 0.015, PERCENT, "of gross sales", ""),
    ]),
    ("Running costs", [
        ("Office salaries", "SalariesPerMonth", 21500, MONEY, "a month", ""),
        ("Officer salaries", "OfficerPerMonth", 7500, MONEY, "a month", ""),
        ("Employee benefits", "BenefitShare", 0.18, PERCENT, "of salaries", ""),
        ("Marketing", "MarketingShare", 0.035, PERCENT, "of net sales", ""),
        ("Rent", "RentPerMonth", 4800, MONEY, "a month", "Paid one month ahead"),
        ("Repairs", "RepairsPerMonth", 900, MONEY, "a month", ""),
        ("Bad debts", "BadDebtShare", 0.006, PERCENT, "of net sales", ""),
        ("Income tax", "TaxRate", 0.24, PERCENT, "of profit", ""),
        ("Dividend", "PayoutShare", 0.3, PERCENT, "of net income", ""),
    ]),
    ("Working capital and plant", [
        ("Customers pay after", "DaysReceivable", 32, WHOLE, "days", ""),
        ("Stock is held for", "DaysInventory", 46, WHOLE, "days", ""),
        ("Suppliers are paid after", "DaysPayable", 38, WHOLE, "days", ""),
        ("Capital expenditure", "CapexPerYear", 48000, MONEY, "a year", "Spread evenly over the quarters"),
        ("Useful life of plant", "UsefulLife", 8, WHOLE, "years", "Straight line"),
    ]),
    ("Equipment loan", [
        ("Amount", "LoanAmount", 150000, MONEY, "", ""),
        ("Interest", "LoanRate", 0.0625, "0.00%", "a year", ""),
        ("Term", "LoanMonths", 48, WHOLE, "months", "The schedule on sheet Loan has 48 lines"),
        ("First payment", "FirstPayment", datetime.date(2024, 2, 1), DAY, "date", ""),
    ]),
    ("Opening balances", [
        ("Cash", "OpeningCash", 42300, MONEY, "", ""),
        ("Accounts receivable", "OpeningReceivable", 118400, MONEY, "", ""),
        ("Inventory", "OpeningInventory", 96750, MONEY, "", ""),
        ("Deferred charges", "OpeningDeferred", 4800, MONEY, "", "Rent paid ahead"),
        ("Net fixed assets", "OpeningFixedAssets", 186000, MONEY, "", ""),
        ("Accounts payable", "OpeningPayable", 71200, MONEY, "", ""),
        ("Income tax payable", "OpeningTax", 9650, MONEY, "", ""),
        ("Loan due within a year", "OpeningLoanDue", 0, MONEY, "", "An older loan is repaid in the first year"),
        ("Loan due later", "OpeningLoanLater", 0, MONEY, "", ""),
        ("Share capital", "ShareCapital", 200000, MONEY, "", ""),
        ("Retained earnings", "OpeningRetained", 167400, MONEY, "", ""),
    ]),
]

REMARKS = {
    "FirstMonth": "Enter the first day of a month. Every date in the model follows from it.",
    "Scenario": "Chosen from the list. The uplift below is applied to the units of every product.",
    "TaxRate": "Combined rate. No credit is taken in a quarter with a loss.",
    "DaysReceivable": "Average of the twelve months before the model starts.",
    "LoanRate": "Nominal rate, charged monthly on the opening balance.",
    "OpeningRetained": "Agrees with the closed ledger of the year before.",
}


def name_range(sheet, name, reference):
    sheet.parent.defined_names.append(DefinedName(name, attr_text=f"{sheet.title}!{reference}"))


def put_input(sheet, row, entry):
    label, name, value, number_format, unit, note = entry
    put(sheet, f"B{row}", label, "label")
    if number_format == "text":
        put_as_text(sheet, f"C{row}", value, "input")
    else:
        put(sheet, f"C{row}", value, "input", number_format)
    if unit:
        put(sheet, f"D{row}", unit, "note")
    if note:
        put(sheet, f"E{row}", note, "note")
    if name in REMARKS:
        remark(sheet, f"C{row}", REMARKS[name])
    name_range(sheet, name, f"$C${row}")


def put_choices(sheet, cells):
    """Lists and limits on the inputs that have them."""
    rules = [
        ("Scenario", DataValidation(type="list", formula1="ScenarioNames", showErrorMessage=True)),
        ("ApplyPriceRise", DataValidation(type="list", formula1='"TRUE,FALSE"', showErrorMessage=True)),
        ("TaxRate", DataValidation(type="decimal", operator="between", formula1="0", formula2="1",
                                   showErrorMessage=True, error="A share between 0% and 100%.")),
    ]
    for name, rule in rules:
        sheet.add_data_validation(rule)
        rule.add(cells[name])


def put_products(sheet, row):
    """Gives the row of the first product."""
    headings(sheet, row, dict(zip("BCDEF", ["Product", "Units a month", "Growth a month", "Price", "Unit cost"])))
    for offset, product in enumerate(PRODUCTS, 1):
        put(sheet, f"B{row + offset}", product[0], "label")
        for column, value, number_format in zip("CDEF", product[1:], [WHOLE, PERCENT, PRICE, PRICE]):
            put(sheet, f"{column}{row + offset}", value, "input", number_format)
    remark(sheet, f"D{row + len(PRODUCTS)}", "Flat on purpose: the supplier delivers a fixed number of sets.")
    return row + 1


def put_table(sheet, row, head, entries, number_format):
    """A two-column table; gives the references of its labels and its values."""
    headings(sheet, row, dict(zip("BC", head)))
    for offset, (label, value) in enumerate(entries, 1):
        put(sheet, f"B{row + offset}", label, "label")
        put(sheet, f"C{row + offset}", value, "input", number_format)
    first, last = row + 1, row + len(entries)
    return f"$B${first}:$B${last}", f"$C${first}:$C${last}"


def build(sheet):
    """Gives the row of the first product."""
    dress(sheet, "Inputs", "Blue figures on a pale ground are entered; everything else is calculated.",
          {"B": 32, "C": 24, "D": 16, "E": 13, "F": 13, "G": 22}, landscape=False, freeze="A4", titles="$1:$2")
    row, cells = 4, {}
    for title, entries in BLOCKS:
        section(sheet, row, title, COLUMNS)
        for row, entry in enumerate(entries, row + 1):
            put_input(sheet, row, entry)
            cells[entry[1]] = f"C{row}"
        row += 2

    section(sheet, row, "Products", COLUMNS)
    first_product = put_products(sheet, row + 1)
    row = first_product + len(PRODUCTS) + 1

    section(sheet, row, "Scenarios", COLUMNS)
    names, uplifts = put_table(sheet, row + 1, ["Scenario", "Uplift of units"], SCENARIOS, PERCENT)
    name_range(sheet, "ScenarioNames", names)
    row += len(SCENARIOS) + 2
    put(sheet, f"B{row}", "Uplift in use", "subtotal")
    put(sheet, f"C{row}", f"=INDEX({uplifts},MATCH(Scenario,ScenarioNames,0))", "subtotal", PERCENT)
    name_range(sheet, "ScenarioUplift", f"$C${row}")
    put_choices(sheet, cells)
    row += 2

    section(sheet, row, "Season", COLUMNS)
    months = [datetime.date(2000, number, 1).strftime("%B") for number in range(1, 13)]
    _, factors = put_table(sheet, row + 1, ["Month", "Share of an average month"], list(zip(months, SEASON)), FACTOR)
    sheet.row_dimensions[row + 1].height = 30
    name_range(sheet, "SeasonFactors", factors)
    row += 14
    put(sheet, f"B{row}", "Average, to be 1.00", "subtotal")
    put(sheet, f"C{row}", "=AVERAGE(SeasonFactors)", "subtotal", FACTOR)
    return first_product
