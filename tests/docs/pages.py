#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Reads the pages of the documentation: the commands they tell to type, and the names they mention. docs/testing.md
states what counts as a command."""

import dataclasses
import pathlib
import re
import shutil

TREE = pathlib.Path(__file__).resolve().parents[2]

# Programs that need not be installed where the tests run; every other one is recognised because it is.
PROGRAMS = {"alarmctl", "apt", "apt-get", "busctl", "clock", "clock-backup", "gdbus", "journalctl", "man", "ringer",
            "sudo", "systemctl", "timed"}
# What the shell knows by itself.
BUILTINS = {"cd", "export", "kill"}

ASSIGNMENTS = re.compile(r"(?:\w+=\S* +)*")
FOLDERS = re.compile(r"(?:\./|(?:bench|build|tests|tools)/)")
SPAN = re.compile(r"(?<!`)(`+)(?!`)(.+?)(?<!`)\1(?!`)", re.DOTALL)


def form(line):
    """A line without what differs from one run to the next."""
    line = re.sub(r"\bin (?:\d+ (?:d|h|min|s)\b ?)+", "in 0 min ", line)
    return " ".join(re.sub(r"\d+", "0", line).split())


@dataclasses.dataclass
class Step:
    """A command as it stands, the exit status that the comment behind it tells, and the lines that it is to print."""

    command: str
    status: int = 0
    output: list = dataclasses.field(default_factory=list)

    def problem(self, status, output):
        """What its end says against the page, or nothing. Lines are compared in form, and others may come between."""
        if status != self.status:
            return f"ends with status {status}, not {self.status}"
        said = [form(line) for line in output.splitlines()]
        for line in self.output:
            if form(line) not in said:
                return f"does not print: {line}"
            said = said[said.index(form(line)) + 1:]
        return None


@dataclasses.dataclass
class Script:
    """The steps of one block, which follow each other in one home; a command within a text is a script by itself."""

    page: str
    line: int
    steps: list


@dataclasses.dataclass
class Page:
    name: str
    scripts: list
    spans: list  # (line, text) of all that is set as code within the text
    links: list  # (line, target)
    anchors: set


def paths():
    """The pages that are held to their word."""
    return [TREE / "README.md", TREE / "CONTRIBUTING.md", TREE / "CHANGELOG.md", *sorted((TREE / "docs").glob("*.md"))]


def is_command(text, build="build/dev"):
    """Whether something set as code is to be typed into a shell. A name alone is none, unless it is a program for use
    that the tree or the build has."""
    words = text[ASSIGNMENTS.match(text).end():].split()
    if not words:
        return False
    first = words[0].strip("'\"")
    if len(words) > 1 or text.startswith("./"):
        return bool(FOLDERS.match(first)) or first in PROGRAMS | BUILTINS or first.endswith((".py", ".sh")) \
            or shutil.which(first) is not None
    program = TREE / re.sub(r"^build/\w+", str(build), first)
    return bool(re.match("(?:bench|build|tools)/", first)) and program.is_file() \
        and bool(program.stat().st_mode & 0o111)


def read(path, build="build/dev"):
    lines = path.read_text(encoding="utf-8").splitlines()
    page = Page(str(path.relative_to(TREE)) if path.is_relative_to(TREE) else path.name, [], [], [], set())
    number = 0
    while number < len(lines):
        line = lines[number]
        if line.startswith("```"):
            end = next(i for i in range(number + 1, len(lines)) if lines[i].startswith("```"))
            _fenced(page, line[3:].strip(), number + 1, lines[number + 1:end])
            number = end + 1
        elif line.startswith("    ") and (number == 0 or not lines[number - 1].strip()):
            end = next((i for i in range(number, len(lines)) if not lines[i].startswith("    ")), len(lines))
            _indented(page, number + 1, [each[4:] for each in lines[number:end]], build)
            number = end
        else:
            end = _end_of_paragraph(lines, number)
            _text(page, number + 1, "\n".join(lines[number:end]), build)
            number = end
    return page


def _end_of_paragraph(lines, begin):
    """A row of a table and a heading are paragraphs by themselves."""
    if re.match(r"[|#]", lines[begin]) or not lines[begin].strip():
        return begin + 1
    end = begin + 1
    while end < len(lines) and lines[end].strip() and not re.match(r"[|#]|```", lines[end]):
        end += 1
    return end


def _step(line):
    """Nothing for a line that is but a comment."""
    command, _, comment = re.sub(r"(?:^|\s+)#", "\0", line, count=1).partition("\0")
    status = re.search(r"exit status (\d+)", comment)
    return Step(command, int(status[1]) if status else 0) if command else None


def _joined(lines):
    """Lines that end in a backslash go on in the next one."""
    return "\n".join(lines).replace("\\\n", "").splitlines()


def _fenced(page, language, number, lines):
    steps = []
    if language == "sh":
        steps = list(filter(None, map(_step, _joined(lines))))
    elif language == "console":
        for line in _joined(lines):
            if line.startswith("$ "):
                steps.append(_step(line[2:]))
            else:
                steps[-1].output.append(line)
    if steps:
        page.scripts.append(Script(page.name, number + 1, steps))


def _indented(page, number, lines, build):
    steps = list(filter(None, map(_step, _joined(lines))))
    told = [is_command(step.command, build) for step in steps]
    if steps and told[0]:
        # One that is none shows up when it is run.
        page.scripts.append(Script(page.name, number, steps))
    elif any(told):
        raise ValueError(f"{page.name}:{number}: commands among other lines; set them apart in a ```console block")


def _text(page, number, text, build):
    heading = re.match(r"#+ (.*)", text)
    if heading:
        page.anchors.add(re.sub(r"[^\w\- ]", "", heading[1].lower()).replace(" ", "-"))
    for span in SPAN.finditer(text):
        line = number + text.count("\n", 0, span.start())
        code = " ".join(span[2].split())
        page.spans.append((line, code))
        if is_command(code, build):
            page.scripts.append(Script(page.name, line, [Step(code)]))
    for link in re.finditer(r"\]\(([^)\s]+)\)|\bsrc=\"([^\"]+)\"", text):
        page.links.append((number + text.count("\n", 0, link.start()), link[1] or link[2]))
