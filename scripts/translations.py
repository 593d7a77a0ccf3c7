#!/usr/bin/env python3
"""Checks the translation files in languages/ against the program's texts.

The program's English texts are the string literals that are the first
argument of GetTranslation(...), Tr(...) or Translatable(...) in src/
(adjacent literals joined, as the compiler joins them).

  scripts/translations.py --list      every English text, one per line
  scripts/translations.py --missing   per language, the texts it lacks, as
                                      lines ready to be filled in ("text || ")
  scripts/translations.py --unused    per language, the entries nothing uses
  scripts/translations.py --check     both; exit status 1 when anything is off
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CALL = re.compile(r"\b(?:GetTranslation|Tr|Translatable)\(")
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
BLANKS = re.compile(r"(?:\s|//[^\n]*\n|/\*.*?\*/)*", re.S)
ESCAPES = {"n": "\n", "r": "\r", "t": "\t", '"': '"', "'": "'", "\\": "\\"}


def unescape(body):
    def one(match):
        code = match.group(1)
        if code.startswith("u"):
            return chr(int(code[1:], 16))
        if code.startswith("x"):
            return chr(int(code[1:], 16))
        return ESCAPES.get(code, code)

    return re.sub(r"\\(u[0-9a-fA-F]{4}|x[0-9a-fA-F]{2}|.)", one, body)


def literal_argument(text, at):
    """The joined literals starting at `at`, when they are the whole argument."""
    parts = []
    while True:
        at = BLANKS.match(text, at).end()
        match = LITERAL.match(text, at)
        if not match:
            break
        parts.append(unescape(match.group(1)))
        at = match.end()
    if not parts or text[at:at + 1] not in (")", ","):
        return None
    return "".join(parts)


def program_texts():
    texts = set()
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        source = path.read_text(encoding="utf-8")
        for call in CALL.finditer(source):
            text = literal_argument(source, call.end())
            if text is not None and text.strip():
                texts.add(text)
    return texts


def language_entries(path):
    """English text (lower-cased) -> English text, as the reader reads them."""
    entries = {}
    lines = path.read_text(encoding="utf-8-sig").splitlines()
    for line in lines:
        line = line.strip()
        if not line or line.startswith("#"):
            continue
        if "||" in line:
            english = line.split("||", 1)[0].strip()
            entries.setdefault(english.lower(), english)
    return entries


def main(argv):
    mode = argv[1] if len(argv) > 1 else "--check"
    texts = program_texts()
    if mode == "--list":
        print("\n".join(sorted(texts, key=str.lower)))
        return 0
    wanted = {text.strip().lower(): text.strip() for text in texts}
    trouble = False
    for path in sorted((ROOT / "languages").glob("*.lng")):
        entries = language_entries(path)
        missing = sorted((wanted[k] for k in wanted.keys() - entries.keys()), key=str.lower)
        unused = sorted((entries[k] for k in entries.keys() - wanted.keys()), key=str.lower)
        if mode in ("--missing", "--check") and missing:
            trouble = True
            print(f"# {path.relative_to(ROOT)} lacks {len(missing)}:")
            print("\n".join(f"{text} || " for text in missing))
        if mode in ("--unused", "--check") and unused:
            trouble = True
            print(f"# {path.relative_to(ROOT)} has {len(unused)} entries nothing uses:")
            print("\n".join(unused))
    return 1 if trouble and mode == "--check" else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
