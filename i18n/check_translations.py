#!/usr/bin/env python3
"""Fails when a translation file has a message that is unfinished, empty, or
whose placeholders (%1, %2, ... and %n) or accelerator differ from the source
text. Usage: check_translations.py [i18n/*.ts ...]"""
import glob
import os
import re
import sys
import xml.etree.ElementTree as ET

PLACEHOLDER = re.compile(r"%(?:L?[1-9][0-9]?|n)")
# A single "&" marks an accelerator in a widget text; "&&" is a literal &.
ACCELERATOR = re.compile(r"(?<!&)&(?!&)")


def placeholders(text):
    return sorted(PLACEHOLDER.findall(text or ""))


def check(path):
    problems = []
    root = ET.parse(path).getroot()
    for context in root.iter("context"):
        cname = context.findtext("name")
        for message in context.iter("message"):
            source = message.findtext("source") or ""
            tr = message.find("translation")
            where = f"{os.path.basename(path)}: [{cname}] {source[:60]!r}"
            if tr is None:
                problems.append(f"{where}: no translation element")
                continue
            kind = tr.get("type", "")
            if kind in ("unfinished", "vanished", "obsolete"):
                if kind == "unfinished":
                    problems.append(f"{where}: unfinished")
                continue
            forms = [n.text or "" for n in tr.iter("numerusform")] or [tr.text or ""]
            for text in forms:
                if not text.strip():
                    problems.append(f"{where}: empty translation")
                    continue
                if placeholders(source) != placeholders(text) and message.get("numerus") != "yes":
                    problems.append(f"{where}: placeholders {placeholders(source)} became {placeholders(text)}")
                if bool(ACCELERATOR.search(source)) != bool(ACCELERATOR.search(text)):
                    problems.append(f"{where}: accelerator lost or added")
    return problems


def main(argv):
    here = os.path.dirname(os.path.abspath(__file__))
    files = argv[1:] or sorted(glob.glob(os.path.join(here, "*.ts")))
    if not files:
        print("no translation files found", file=sys.stderr)
        return 2
    problems = []
    for path in files:
        problems += check(path)
    for p in problems:
        print(p)
    print(f"{len(files)} translation files, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
