#!/usr/bin/env python3
"""Reads the includes of all product code against scripts/rooms.txt and names each line that breaks the order.

rooms.py [FOLDER]           the house in FOLDER, this one by default; exit code 1 where a line breaks the order
rooms.py --list [FOLDER]    each room with its lines and what it may use
"""
import pathlib
import re
import sys

SOURCES = {".cpp", ".hpp"}
HOUSE = ("src", "screens", "session", "hosts", "apps", "resources")


def read_rooms(file):
    """The rooms in their order, each with those that it may use; and what is wrong with the list."""
    rooms, faults = {}, []
    for number, line in enumerate(file.read_text().splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        room, _, uses = line.partition(":")
        for used in uses.split():
            if used not in rooms:
                faults.append(f"{file}:{number}: {used} does not stand above {room}")
        rooms[room] = set(uses.split())
    return rooms, faults


def room_of(file, rooms):
    return next((str(folder) for folder in file.parents if str(folder) in rooms), None)


def included(text):
    for number, line in enumerate(text.splitlines(), 1):
        if found := re.match(r'\s*#\s*include\s+"([^"]+)"', line):
            yield number, found[1]


def check(house, rooms):
    faults = []
    found = (file for part in HOUSE for file in (house / part).rglob("*"))
    files = {file.relative_to(house) for file in found if file.suffix in SOURCES}
    for file in sorted(files):
        room = room_of(file, rooms)
        if not room:
            faults.append(f"{file}: lies in no room")
            continue
        for number, name in included((house / file).read_text()):
            place = next((f for f in (pathlib.Path("src") / name, pathlib.Path(name)) if f in files), None)
            target = place and room_of(place, rooms)
            if target != room and target not in rooms[room]:
                faults.append(f'{file}:{number}: {room} may not use {target or "what is no room"}: "{name}"')
    return faults


def lines_of(house, room, rooms):
    files = (f for f in (house / room).rglob("*") if f.suffix in SOURCES)
    return sum(len(f.read_text().splitlines()) for f in files if room_of(f.relative_to(house), rooms) == room)


def main(arguments):
    listing = "--list" in arguments
    folders = [argument for argument in arguments if argument != "--list"]
    house = pathlib.Path(folders[0] if folders else pathlib.Path(__file__).parent.parent).resolve()
    rooms, faults = read_rooms(house / "scripts" / "rooms.txt")
    if listing:
        for room, uses in rooms.items():
            print(f"{room:40} {lines_of(house, room, rooms):6}  {' '.join(sorted(uses))}")
        return 0
    faults += check(house, rooms)
    print("\n".join(faults) or f"{len(rooms)} rooms, no line breaks their order")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
