#!/usr/bin/env python3
"""Writes model.xlsx beside this script, the same bytes at every run."""

import datetime
import io
import pathlib
import re
import sys
import zipfile

from openpyxl import Workbook
from openpyxl.workbook.properties import CalcProperties

from harbour_lane import inputs, loan, pages, ratios, sales, statements

SHEETS = ["Cover", "Inputs", "Sales", "P&L", "Balance", "Ratios", "Loan", "Notes", "Archive"]
WRITTEN = datetime.datetime(2024, 1, 15, 9, 0, 0)


def build():
    book = Workbook()
    book.remove(book.active)
    sheet = {name: book.create_sheet(name) for name in SHEETS}
    first_product = inputs.build(sheet["Inputs"])
    sales_rows = sales.build(sheet["Sales"], first_product)
    loan.build(sheet["Loan"])
    income_rows = statements.build_income(sheet["P&L"], sales_rows)
    balance_rows = statements.build_balance(sheet["Balance"], income_rows)
    ratios.build(sheet["Ratios"], balance_rows, income_rows)
    pages.build_notes(sheet["Notes"])
    pages.build_archive(sheet["Archive"])
    pages.build_cover(sheet["Cover"], sheet["Sales"], sales_rows, income_rows, balance_rows)

    book.calculation = CalcProperties(fullCalcOnLoad=True)
    book.properties.title = "Two-year financial model"
    book.properties.creator = "Finance department"
    book.properties.lastModifiedBy = "Finance department"
    book.properties.created = WRITTEN
    return book


def dated(archive):
    """The same archive with every time in it set to WRITTEN: saving stamps the parts with the clock."""
    stamp = WRITTEN.strftime("%Y-%m-%dT%H:%M:%SZ").encode()
    result = io.BytesIO()
    with zipfile.ZipFile(archive) as source, zipfile.ZipFile(result, "w", zipfile.ZIP_DEFLATED) as target:
        for name in source.namelist():
            content = source.read(name)
            if name == "docProps/core.xml":
                content = re.sub(rb"(<dcterms:modified[^>]*>)[^<]*", rb"\g<1>" + stamp, content)
            entry = zipfile.ZipInfo(name, WRITTEN.timetuple()[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            target.writestr(entry, content)
    return result.getvalue()


def main():
    saved = io.BytesIO()
    build().save(saved)
    target = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).with_name("model.xlsx")
    target.write_bytes(dated(saved))


if __name__ == "__main__":
    main()
