"""Prints what a workbook holds as JSON, read without any office: {sheet: {address: [type, formula]}}.

The type is "number", "text", "boolean", "date" or "error"; the formula is its text, true where only its being there is
known, or null; for a file of which formulas cannot be told it is "unknown".
"""
import datetime
import json
import sys
import warnings
import xml.etree.ElementTree as tree
import zipfile


def address(row, column):
    letters = ""
    while column > 0:
        column, rest = divmod(column - 1, 26)
        letters = chr(65 + rest) + letters
    return letters + str(row)


def kind_of(value):
    if isinstance(value, bool):
        return "boolean"
    if isinstance(value, (datetime.datetime, datetime.date, datetime.time, datetime.timedelta)):
        return "date"
    if isinstance(value, (int, float)):
        return "number"
    return "error" if isinstance(value, str) and value.startswith("#") and value.isupper() else "text"


def read_xlsx(path):
    import openpyxl
    from openpyxl.reader import excel

    excel.find_images = lambda archive, place: ([], [])  # some files name drawings that they do not hold
    formulas = openpyxl.load_workbook(path)
    values = openpyxl.load_workbook(path, data_only=True)
    result = {}
    for sheet in formulas.worksheets:
        in_arrays = {}
        cells = {}
        for row in sheet.iter_rows():
            for cell in row:
                if cell.value is None:
                    continue
                formula = cell.value if cell.data_type == "f" else None
                if formula is not None and not isinstance(formula, str):  # of an array
                    for part in sheet[formula.ref] if ":" in formula.ref else ((cell,),):
                        for member in part:
                            in_arrays[member.coordinate] = formula.text
                    formula = formula.text
                value = values[sheet.title][cell.coordinate].value if formula else cell.value
                kind = "error" if cell.data_type == "e" else kind_of(value)
                if formula and value is None:
                    kind = "unknown"
                cells[cell.coordinate] = [kind, formula]
        for place, formula in in_arrays.items():
            cells[place] = [cells.get(place, ["unknown"])[0], formula]
        result[sheet.title] = cells
    return result


def read_xls(path):
    import xlrd

    kinds = {1: "text", 2: "number", 3: "date", 4: "boolean", 5: "error"}
    book = xlrd.open_workbook(path)
    result = {}
    for sheet in book.sheets():
        cells = {}
        for row in range(sheet.nrows):
            for column in range(sheet.row_len(row)):
                kind = kinds.get(sheet.cell_type(row, column))
                if kind:
                    cells[address(row + 1, column + 1)] = [kind, "unknown"]
        result[sheet.name] = cells
    return result


def read_ods(path):
    table = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
    office = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
    extended = "{urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0}"
    kinds = {"float": "number", "percentage": "number", "currency": "number", "date": "date", "time": "date",
             "boolean": "boolean", "string": "text"}
    body = tree.parse(zipfile.ZipFile(path).open("content.xml")).getroot()
    result = {}
    for sheet in body.iter(table + "table"):
        if sheet.get(table + "name") is None or sheet.find(table + "table-source") is not None:
            continue
        cells = {}
        row = 0
        for line in sheet.iter(table + "table-row"):
            repeated = int(line.get(table + "number-rows-repeated", 1))
            column = 0
            found = {}
            for cell in line:
                if cell.tag not in (table + "table-cell", table + "covered-table-cell"):
                    continue
                width = int(cell.get(table + "number-columns-repeated", 1))
                kind = cell.get(office + "value-type")
                formula = cell.get(table + "formula")
                if kind or formula:
                    error = cell.get(extended + "value-type") == "error"
                    for place in range(column + 1, column + width + 1):
                        found[place] = ["error" if error else kinds.get(kind, "unknown"), True if formula else None]
                column += width
            if found:
                for place in range(row + 1, row + repeated + 1):
                    for at, held in found.items():
                        cells[address(place, at)] = held
            row += repeated
        result[sheet.get(table + "name")] = cells
    return result


warnings.simplefilter("ignore")
readers = {"xlsx": read_xlsx, "xls": read_xls, "ods": read_ods}
json.dump(readers[sys.argv[1].rsplit(".", 1)[-1]](sys.argv[1]), sys.stdout)
