#!/usr/bin/env python3
"""Moves translations between a .ts file and a flat JSON list, so that
translators can work on plain text.

  ts_tool.py dump i18n/de.ts [--all] > de.json   # unfinished messages (or all)
  ts_tool.py apply i18n/de.ts de.json            # writes the translations back

The JSON is a list of {"context", "source", "comment", "translation"}. With
--unique, dump lists each source text once, without context; an entry without
context applies to that source text in every context."""
import json
import sys
import xml.etree.ElementTree as ET


def messages(root):
    for context in root.iter("context"):
        cname = context.findtext("name")
        for message in context.iter("message"):
            yield cname, message


def dump(path, everything, unique=False):
    root = ET.parse(path).getroot()
    out = []
    for cname, message in messages(root):
        tr = message.find("translation")
        unfinished = tr is None or tr.get("type") == "unfinished" or not (tr.text or "").strip()
        if everything or unfinished:
            out.append({"context": cname, "source": message.findtext("source") or "",
                        "comment": message.findtext("comment") or "",
                        "translation": "" if unfinished else (tr.text or "")})
    if unique:
        seen = {}
        for e in out:
            seen.setdefault(e["source"], {"source": e["source"], "translation": e["translation"]})
        out = list(seen.values())
    json.dump(out, sys.stdout, ensure_ascii=False, indent=1)
    print()


def apply(path, json_path):
    tree = ET.parse(path)
    root = tree.getroot()
    with open(json_path, encoding="utf-8") as f:
        entries = json.load(f)
    wanted = {(e["context"], e["source"], e.get("comment", "")): e["translation"] for e in entries if "context" in e}
    by_source = {e["source"]: e["translation"] for e in entries if "context" not in e}
    done = 0
    for cname, message in messages(root):
        key = (cname, message.findtext("source") or "", message.findtext("comment") or "")
        text = wanted.get(key) or by_source.get(key[1])
        if not text:
            continue
        tr = message.find("translation")
        if tr is None:
            tr = ET.SubElement(message, "translation")
        tr.text = text
        tr.attrib.pop("type", None)
        done += 1
    tree.write(path, encoding="utf-8", xml_declaration=True)
    with open(path, encoding="utf-8") as f:
        body = f.read()
    # Qt's tools expect the doctype line that ElementTree drops.
    body = body.replace("<?xml version='1.0' encoding='utf-8'?>\n",
                        '<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n', 1)
    with open(path, "w", encoding="utf-8") as f:
        f.write(body)
    print(f"{path}: {done} translations applied", file=sys.stderr)


if __name__ == "__main__":
    if len(sys.argv) >= 3 and sys.argv[1] == "dump":
        dump(sys.argv[2], "--all" in sys.argv[3:], "--unique" in sys.argv[3:])
    elif len(sys.argv) == 4 and sys.argv[1] == "apply":
        apply(sys.argv[2], sys.argv[3])
    else:
        print(__doc__, file=sys.stderr)
        sys.exit(2)
