#!/usr/bin/env python3
"""Names every text in the sources that an operator would see and that no translator could reach.

Looked at are the arguments of functions that show a text, such as setToolTip() or addAction(), and
every literal of two words or more, wherever it stands. A literal is right inside tr(), translate()
and the QT_TR_NOOP macros. What is not meant for operators says so in a comment, which counts
up to the next empty line or the end of its block:

    // not translated: <why>

Ends with 1 when it names anything.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ["Common", "Platform", "UI", "gallery"]

# Files whose texts are not for operators.
EXCEPTIONS = {
    "gallery/ClientOptions.cpp": "the command line speaks English, as its options do",
    "gallery/Screenshots.cpp": "messages of the screenshot run, for developers",
    "gallery/main.cpp": "messages before the first window",
}

SHOWING = (
    "setText|setToolTip|setStatusTip|setWhatsThis|setAccessibleName|setAccessibleDescription|setWindowTitle"
    "|setPlaceholderText|setTitle|setSuffix|setPrefix|setSpecialValueText|setLabelText|setItemText"
    "|setHeaderLabels|setHorizontalHeaderLabels|setInformativeText|setDetailedText|showMessage|showText"
    "|addAction|addItem|addItems|addRow|addTab|addMenu|insertItem|information|question|warning|critical"
    "|about|getOpenFileName|getSaveFileName|getExistingDirectory|SetTitle|SetDlgTitle|SetButtonText"
    "|SetToolTip|SetTipText|SetHint|ShowTip|showErrorHint|AddTextNotification|SignalReport"
    "|QLabel|QPushButton|QCheckBox|QRadioButton|QGroupBox|QToolButton|QAction|KvPushButton|KvCheckBox"
    "|KvImpPushButton|WmNoImpPushButton")
# At once: new QLabel("..."), QLabel label("..."), label->setText("...").
SHOWING_CALL = re.compile(rf"\b(?:{SHOWING})\b(?:\s+\w+)?\s*\(")
TRANSLATING = re.compile(
    r"(?<!painter\.)(?<!line\.)\b(?:tr|translate|Translated|QT_TR_NOOP|QT_TRANSLATE_NOOP|QT_TR_N_NOOP"
    r"|QT_TRANSLATE_NOOP3)\s*\(")
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
EXCUSE = re.compile(r"//.*not translated: \S")
WORD = re.compile(r"[A-Za-z]{2,}")
# Two words with a space between, not a signature, a style sheet, a path, an address or a format.
SENTENCE = re.compile(r"^[A-Z][a-z]+(?: [A-Za-z]+)+[.:!?\u2026]?$")


def end_of_call(text, opening):
    """The position behind the parenthesis that closes the one at opening."""
    depth = 0
    position = opening
    while position < len(text):
        literal = LITERAL.match(text, position)
        if literal:
            position = literal.end()
            continue
        if text[position] == "(":
            depth += 1
        elif text[position] == ")":
            depth -= 1
            if depth == 0:
                return position + 1
        position += 1
    return len(text)


def spans(pattern, text):
    return [(match.start(), end_of_call(text, match.end() - 1)) for match in pattern.finditer(text)]


def without_comments(text):
    """The text with its comments blanked, so that positions stay."""
    def blank(match):
        return match.group() if match.group().startswith('"') else re.sub(r"[^\n]", " ", match.group())
    return re.sub(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*|/\*.*?\*/', blank, text, flags=re.DOTALL)


def is_shown(text, literal, showing):
    """Whether an operator sees the literal: in the call of a function that shows it, or by its looks."""
    for start, end in showing:
        if start < literal.start() < end:
            # The name of an object, a property or a sheet inside such a call is not its text.
            before = text[start:literal.start()]
            return not re.search(r"\b(?:arg|setObjectName|property|SLOT|SIGNAL|QDir|filePath)\s*\($", before)
    return SENTENCE.match(literal.group(1)) is not None


def excused_lines(lines):
    """The indices of the lines that a comment excuses."""
    excused = set()
    for start, line in enumerate(lines):
        if not EXCUSE.search(line):
            continue
        indent = len(line) - len(line.lstrip())
        for number in range(start, len(lines)):
            if number > start and len(lines[number]) - len(lines[number].lstrip()) < indent:
                break
            if not lines[number].strip():
                break
            excused.add(number)
    return excused


def faults_of(file):
    source = file.read_text(encoding="utf-8")
    excused = excused_lines(source.split("\n"))
    text = without_comments(source)
    translated = spans(TRANSLATING, text)
    showing = spans(SHOWING_CALL, text)
    for literal in LITERAL.finditer(text):
        if not WORD.search(re.sub(r"\\[nrtu][0-9a-f]{0,4}|%\d", "", literal.group(1))):
            continue
        if any(start < literal.start() < end for start, end in translated):
            continue
        number = text.count("\n", 0, literal.start())
        if text.rfind("#include", 0, literal.start()) > text.rfind("\n", 0, literal.start()):
            continue
        if number in excused:
            continue
        if is_shown(text, literal, showing):
            yield f"{file.relative_to(ROOT).as_posix()}:{number + 1}: {literal.group()}"


def faults_of_form(file):
    """The texts of a form are translated unless they say otherwise."""
    for number, line in enumerate(file.read_text(encoding="utf-8").split("\n"), 1):
        if 'notr="true"' in line:
            yield f"{file.relative_to(ROOT).as_posix()}:{number}: {line.strip()}"


def main():
    faults = []
    for folder in FOLDERS:
        for file in sorted((ROOT / folder).rglob("*")):
            if file.relative_to(ROOT).as_posix() in EXCEPTIONS:
                continue
            if file.suffix in (".h", ".cpp"):
                faults += faults_of(file)
            elif file.suffix == ".ui":
                faults += faults_of_form(file)
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
