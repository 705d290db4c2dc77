#!/usr/bin/env python3
"""Makes the blank posting list beside this script, a landscape A4 sheet in the format of the older spreadsheets.

Needs the package python3-xlwt. Run it after a change and commit the workbook with it. The names that the program
prints at its first margins, 65 mm from the left and 70 from the top, stand in the middle of the rows: 14 of them, 8 mm
apart, the postcode 45 mm and the settlement 62 mm right of the name.
"""

import os

import xlwt

LEFT, TOP = 15.0, 10.0  # page margins, mm
FIRST_ROW = 67.6  # top of the first name's row, mm from the edge of the paper
ROWS, ROW_STEP = 14, 8.0

PIXEL = 25.4 / 96  # spreadsheets round heights and widths to pixels of the screen, so all lengths are whole ones
DIGIT = 6  # pixels of a digit of 8 points, the unit of column widths

# Caption and right edge of each column, mm from the edge of the paper.
COLUMNS = [
    ("Ssz.", 23.5),
    ("Küldemény azonosítója", 63.5),
    ("Címzett neve", 108.5),
    ("Ir. szám", 125.5),
    ("Helység", 165.5),
    ("Tömeg\n(g)", 183.0),
    ("Érték\n(Ft)", 206.0),
    ("Utánvét\n(Ft)", 229.0),
    ("Különszolgáltatás", 259.0),
    ("Díj\n(Ft)", 282.0),
]
NAME, SERVICE, LAST = 2, 8, len(COLUMNS) - 1

SOFT = "gray50"
xlwt.add_palette_colour("tint", 0x21)


def style(text="", align="", borders="", fill=""):
    parts = [f"font: name Arial, {text or 'height 180'}"]
    parts += [f"alignment: vertical center, {align or 'horizontal left'}"]
    if borders:
        parts.append(f"borders: {borders}")
    if fill:
        parts.append(f"pattern: pattern solid, fore_colour {fill}")
    return xlwt.easyxf("; ".join(parts))


GRID = "left thin, right thin, top thin, bottom thin, " + ", ".join(
    f"{side}_colour {SOFT}" for side in ("left", "right", "top", "bottom")
)
TITLE = style("bold on, height 360")
SUBTITLE = style(f"height 160, colour {SOFT}")
LABEL = style(f"height 160, colour {SOFT}", "horizontal left, vertical bottom")
FIELD = style("height 200", "horizontal left, vertical bottom", f"bottom thin, bottom_colour {SOFT}")
CAPTION = style("bold on, height 160", "horizontal center, wrap on", GRID, "tint")
NUMBER = style(f"height 160, colour {SOFT}", "horizontal center", GRID)
CELL = style("height 160", "horizontal left", GRID)
FIGURE = style("height 160", "horizontal right", GRID)
TOTAL = style("bold on, height 160", "horizontal right")
SIGNATURE = style(f"height 160, colour {SOFT}", "horizontal center, vertical top", f"top thin, top_colour {SOFT}")


class Form:
    """The sheet, written from the top down; heights add up without rounding errors."""

    def __init__(self, sheet):
        self.sheet = sheet
        self.row = -1
        self.bottom = 0  # of the last row, pixels from the top margin

    def next_row(self, down_to):
        """Begins a row that ends `down_to` mm from the upper edge of the paper."""
        bottom = round((down_to - TOP) / PIXEL)
        self.row += 1
        row = self.sheet.row(self.row)
        row.height_mismatch = True
        row.height = (bottom - self.bottom) * 15  # twips
        self.bottom = bottom

    def put(self, column, value, look):
        self.sheet.write(self.row, column, value, look)

    def span(self, first, last, value, look):
        self.sheet.write_merge(self.row, self.row, first, last, value, look)


def set_own_font(workbook):
    """Programs measure columns in digits of the workbook's own font: some round a digit to pixels, some don't. In 8
    points it is so near to whole pixels that all agree to a millimetre. The library has no call for it."""
    for font in workbook._Workbook__styles._font_x2id.values():
        font.height = 160


def set_page(sheet):
    sheet.paper_size_code = 9  # A4
    sheet.portrait = False
    sheet.print_scaling = 100
    sheet.print_centered_horz = False
    sheet.show_grid = False
    inch = 25.4
    sheet.left_margin, sheet.right_margin = LEFT / inch, 10 / inch
    sheet.top_margin, sheet.bottom_margin = TOP / inch, 8 / inch
    sheet.header_margin = sheet.footer_margin = 0
    sheet.header_str = sheet.footer_str = b""


def set_columns(sheet):
    edge = 0
    for column, (_, right) in enumerate(COLUMNS):
        pixels = round((right - LEFT) / PIXEL) - edge
        edge += pixels
        sheet.col(column).width = round(pixels * 256 / DIGIT)


def write_head(form):
    form.next_row(20)
    form.span(0, SERVICE - 1, "FELADÓJEGYZÉK", TITLE)
    form.span(SERVICE, LAST, "Lap:            /", FIELD)
    form.next_row(26)
    form.span(0, LAST, "könyvelt küldemények feladásához", SUBTITLE)
    fields = [("Feladó neve:", "Feladás kelte:"), ("Feladó címe:", "Felvevő posta:"), ("Megállapodás száma:", "Megjegyzés:")]
    for line, (left, right) in enumerate(fields):
        form.next_row(34.5 + 8.5 * line)
        form.span(0, 1, left, LABEL)
        form.span(NAME, 4, "", FIELD)
        form.span(5, 6, "   " + right, LABEL)
        form.span(7, LAST, "", FIELD)
    form.next_row(56.6)
    form.next_row(FIRST_ROW)
    for column, (caption, _) in enumerate(COLUMNS):
        form.put(column, caption, CAPTION)


def write_rows(form):
    for number in range(1, ROWS + 1):
        form.next_row(FIRST_ROW + number * ROW_STEP)
        form.put(0, number, NUMBER)
        for column in range(1, LAST + 1):
            form.put(column, "", FIGURE if column in (5, 6, 7, LAST) else CELL)


def write_foot(form):
    form.next_row(FIRST_ROW + (ROWS + 1) * ROW_STEP)
    form.span(0, 3, "Összesen (db):", TOTAL)
    form.put(4, "", FIGURE)
    form.span(5, SERVICE, "Összes díj (Ft):", TOTAL)
    form.put(LAST, "", FIGURE)
    form.next_row(195)
    form.next_row(200)
    form.span(1, 2, "feladó aláírása", SIGNATURE)
    form.span(6, SERVICE, "felvevő aláírása, keletbélyegző", SIGNATURE)


def main():
    workbook = xlwt.Workbook(encoding="utf-8")
    workbook.set_colour_RGB(0x21, 228, 236, 245)
    set_own_font(workbook)
    sheet = workbook.add_sheet("Feladójegyzék")
    set_page(sheet)
    set_columns(sheet)
    form = Form(sheet)
    write_head(form)
    write_rows(form)
    write_foot(form)
    workbook.save(os.path.join(os.path.dirname(os.path.abspath(__file__)), "Feladojegyzekures.xls"))


main()
