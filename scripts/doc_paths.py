#!/usr/bin/env python3
"""Names each path in the Markdown files that is not in the house. Code is read from the house's folder, blocks of code
included; links are read from the folder of the file that they stand in.

doc_paths.py [FOLDER]    the house in FOLDER, this one by default; exit code 1 where a path is not there

A word in capitals stands for any name: resources/faces/NAME.svg wants some drawing in that folder. Not looked for are
what a build makes below build/, and what lies outside: absolute paths, those of the user (~), addresses on the web.
"""
import pathlib
import re
import sys

CODE = re.compile(r"(`+)(.+?)\1", re.DOTALL)
WORD = re.compile(r"[^\s`\"'()\[\]{}<>|=,;:]+")
PATH = re.compile(r"[\w.*+-]+(/[\w.*+-]+)*/?")
LINK = re.compile(r'(?:\]\(|src=")([^)\s"]+)')
ANY_NAME = re.compile(r"(?<![A-Za-z])[A-Z]{2,}(?![A-Za-z])")


def documents(house):
    for place in sorted(house.iterdir()):
        if place.suffix == ".md":
            yield place
        elif place.is_dir() and place.name not in ("build", ".git"):
            yield from sorted(place.rglob("*.md"))


def paths_in_code(text):
    """Each with its place in the text."""
    for code in CODE.finditer(text):
        if code[2].startswith("~"):
            continue  # the user's folders have names with blanks
        for word in WORD.finditer(text, code.start(2), code.end(2)):
            path = word[0].rstrip(".").removeprefix("./")
            if "/" in word[0] and PATH.fullmatch(path) and not path.startswith("build/"):
                yield word.start(), path


def links(text):
    without_code = CODE.sub(lambda code: re.sub(r"\S", " ", code[0]), text)
    for link in LINK.finditer(without_code):
        target = link[1].partition("#")[0]
        if target and not re.match(r"\w+:|/", target):
            yield link.start(), target


def is_there(folder, path):
    return (folder / path).exists() or any(folder.glob(ANY_NAME.sub("*", path.rstrip("/"))))


def check(house):
    """How many paths there are, and a line for each that is missing."""
    count, faults = 0, []
    for document in documents(house):
        text = document.read_text()
        found = [(place, path, house) for place, path in paths_in_code(text)]
        found += [(place, path, document.parent) for place, path in links(text)]
        for place, path, folder in sorted(found):
            count += 1
            if not is_there(folder, path):
                line = text.count("\n", 0, place) + 1
                faults.append(f"{document.relative_to(house)}:{line}: there is no {path}")
    return count, faults


def main(arguments):
    house = pathlib.Path(arguments[0] if arguments else pathlib.Path(__file__).parent.parent).resolve()
    count, faults = check(house)
    print("\n".join(faults) or f"{count} paths in the documents, all are there")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
