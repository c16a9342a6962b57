#!/usr/bin/env python3
"""Prints a workbook as JSON, read by libraries that have nothing to do with the office: openpyxl for xlsx,
xlrd for xls, the csv module for csv, pdftotext for pdf (a list of the words of each page)."""
import csv
import json
import subprocess
import sys


def color(value):
    return None if value is None or value.rgb is None else str(value.rgb)[-6:].lower()


def xlsx(path):
    from openpyxl import load_workbook
    from openpyxl.utils import get_column_letter

    sheet = load_workbook(path).worksheets[0]
    cells = {}
    for row in sheet.iter_rows():
        for cell in row:
            cells[cell.coordinate] = {
                "value": cell.value if isinstance(cell.value, (int, float, str, bool, type(None))) else str(cell.value),
                "bold": bool(cell.font.b), "italic": bool(cell.font.i), "underline": cell.font.u or "",
                "size": cell.font.sz, "font": cell.font.name, "color": color(cell.font.color) or "000000",
                "fill": color(cell.fill.fgColor) if cell.fill.fill_type == "solid" else None,
                "horizontal": cell.alignment.horizontal, "vertical": cell.alignment.vertical,
                "wrap": bool(cell.alignment.wrap_text), "format": cell.number_format,
                "line": cell.border.left.style,
                "borders": [color(side.color) if side.style else None for side in (
                    cell.border.left, cell.border.top, cell.border.right, cell.border.bottom)],
            }
    return {
        "name": sheet.title, "cells": cells, "merged": [str(area) for area in sheet.merged_cells.ranges],
        "heights": {str(row): size.height for row, size in sheet.row_dimensions.items()},
        "width": sheet.column_dimensions[get_column_letter(1)].width,
    }


def xls(path):
    import xlrd

    sheet = xlrd.open_workbook(path, formatting_info=True).sheet_by_index(0)
    return {"name": sheet.name, "rows": [sheet.row_values(row) for row in range(sheet.nrows)],
            "merged": [list(area) for area in sheet.merged_cells]}


def comma_separated(path):
    with open(path, encoding="utf-8", newline="") as file:
        mark = file.read(1)
        return {"mark": mark, "rows": list(csv.reader(file))}


def pdf(path):
    text = subprocess.run(["pdftotext", "-layout", path, "-"], check=True, capture_output=True, text=True).stdout
    return {"pages": [page.split() for page in text.split("\f") if page.strip()]}


READERS = {"xlsx": xlsx, "xls": xls, "csv": comma_separated, "pdf": pdf}
print(json.dumps(READERS[sys.argv[1].rsplit(".", 1)[1]](sys.argv[1])))
