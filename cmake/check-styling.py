#!/usr/bin/env python3
"""Compares docs/styling.md with the public widgets, their sources and the sheets of the skins.

    check-styling.py <public header>...      paths relative to the root, as they are installed

The page's tables have a row for each widget: its class, its sheets, and the names that rules can use. A
fault is
- a public widget without a row, and a row for a class that is none;
- a sheet that is no template, and a template of a sheet on no row;
- an object name, a class or a property on a row that no source in the widget's folder has;
- one that a sheet uses but the rows of that sheet do not name, and an object name that a source gives but
  the page does not name.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TEMPLATES = ROOT / "Resources/templates"
LIBRARY = ["Platform/BasicUIComponents", "UI"]

BASE = re.compile(r"class UICOMPONENTS_EXPORT (\w+) : public (?:\w+::)*(\w+)")
CODE = re.compile(r"`([^`]+)`")
OBJECT = re.compile(r"(?<![\w(])#([A-Za-z_][\w-]*)")
CLASS = re.compile(r"(?<![#\w-])([A-Z]\w+--\w+)")
PROPERTY = re.compile(r"qproperty-(\w+)|\[(\w+)=")
INCLUDE = re.compile(r"@include ([\w/.-]+)@")
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
OF_QT = {".icon"}  # properties of Qt's own widgets
COLOUR = re.compile(r":[^;{}]*;")  # a declaration's value: "#ffffff" is no object name there


def names(text: str) -> set:
    """What rules can name in a text: "#object", "Namespace--Class" and "property" with their marks."""
    found = {"#" + name for name in OBJECT.findall(text)} | set(CLASS.findall(text))
    return found | {"." + (one or other) for one, other in PROPERTY.findall(text)}


def rows():
    """Class, sheets and names of each row."""
    for line in (ROOT / "docs/styling.md").read_text(encoding="utf-8").splitlines():
        cells = line.split(" | ")
        if len(cells) == 3 and "`" in cells[0]:
            codes = CODE.findall(cells[2])
            yield CODE.findall(cells[0])[0].split("::")[-1], CODE.findall(cells[1]), names(" ".join(codes))


def public_widgets(headers) -> dict:
    """The folder of each public class that is a widget, by its name."""
    bases, folders = {}, {}
    for header in headers:
        for name, base in BASE.findall((ROOT / header).read_text(encoding="utf-8")):
            bases[name], folders[name] = base, header.rsplit("/", 1)[0]
    return {name: folder for name, folder in folders.items() if qt_base(name, bases) != "QObject"}


def qt_base(name: str, bases: dict) -> str:
    return qt_base(bases[name], bases) if name in bases else name


def sources(folder: str) -> str:
    files = [file for file in sorted((ROOT / folder).rglob("*")) if file.suffix in {".h", ".cpp", ".ui"}]
    return "\n".join(file.read_text(encoding="utf-8") for file in files)


def is_in(name: str, code: str) -> bool:
    if name.startswith("#"):
        literal = re.sub(r"\d+", r"(\\d+|%1)", re.escape(name[1:]))  # numbered names are made with arg()
        return re.search(f'"{literal}"', code) is not None
    if name in OF_QT:
        return True
    if name.startswith("."):
        return re.search(rf'Q_PROPERTY\(\s*\w+ {name[1:]}\b|setProperty\("{name[1:]}"', code) is not None
    space, _, own = name.partition("--")
    return f"namespace {space}" in code and re.search(rf"class (UICOMPONENTS_EXPORT )?{own}\b", code) is not None


def sheet_text(sheet: str) -> str:
    text = COMMENT.sub("", (TEMPLATES / sheet).read_text(encoding="utf-8"))
    return INCLUDE.sub(lambda match: sheet_text(match[1]), text)


def sheet_names(sheet: str) -> set:
    text = sheet_text(sheet)
    # Values hold colours and pictures; the names of properties stand before the colon.
    return names(COLOUR.sub(":;", re.sub(r"(qproperty-\w+):", r"\1 :", text)))


def page_faults(table, widgets):
    for name in sorted(widgets.keys() - {row[0] for row in table}):
        yield f"{name} is a public widget and has no row"
    for name, sheets, row_names in table:
        if name not in widgets and name != "KvMessageNotify":  # no widget, but it shows some
            yield f"{name} is no public widget"
            continue
        for sheet in sheets:
            if not (TEMPLATES / sheet).is_file():
                yield f"{name}: there is no sheet {sheet}"
        code = sources(widgets.get(name, "Platform/BasicUIComponents"))
        for used in sorted(row_names):
            if not is_in(used, code):
                yield f"{name}: no source has {used}"


def sheet_faults(table):
    for path in sorted(TEMPLATES.rglob("*")):
        if path.suffix not in {".css", ".qss"}:
            continue
        sheet = path.relative_to(TEMPLATES).as_posix()
        parts = {sheet, *INCLUDE.findall(path.read_text(encoding="utf-8"))}
        known = [row_names for _, sheets, row_names in table if parts & set(sheets)]
        if not known:
            yield f"{sheet} is on no row"
        for missing in sorted(sheet_names(sheet) - set().union(*known)):
            yield f"{sheet} uses {missing}, which no row of it names"


def source_faults(table):
    page = set().union(*(row_names for _, _, row_names in table))
    for folder in LIBRARY:
        for name in sorted(set(re.findall(r'setObjectName\(QStringLiteral\("([\w-]+)"\)\)', sources(folder)))):
            if "#" + name not in page:
                yield f"the object name {name} is not on the page"


def main() -> int:
    table = list(rows())
    faults = [*page_faults(table, public_widgets(sys.argv[1:])), *sheet_faults(table), *source_faults(table)]
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
