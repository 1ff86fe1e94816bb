"""A small house in a folder of its own shows that the check of the rooms finds what it is for."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).parents[2] / "scripts" / "rooms.py"


class Rooms(unittest.TestCase):
    def check(self, rooms, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {"scripts/rooms.txt": rooms, **files}.items():
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
            return run.returncode, run.stdout.replace(folder, "HOUSE").splitlines()

    def test_a_house_in_order(self):
        rooms = "src/low:\nsrc/high: src/low\n"
        files = {"src/low/a.hpp": "", "src/high/b.cpp": '#include "low/a.hpp"\n#include <vector>\n'}
        self.assertEqual(self.check(rooms, files), (0, ["2 rooms, no line breaks their order"]))

    def test_the_line_that_uses_a_room_above_is_named(self):
        rooms = "src/low:\nsrc/high: src/low\n"
        files = {"src/low/a.cpp": '\n#include "high/b.hpp"\n', "src/high/b.hpp": ""}
        self.assertEqual(self.check(rooms, files), (1, ['src/low/a.cpp:2: src/low may not use src/high: "high/b.hpp"']))

    def test_a_list_that_points_up_is_refused(self):
        rooms = "src/low: src/high\nsrc/high:\n"
        self.assertEqual(self.check(rooms, {}), (1, ["HOUSE/scripts/rooms.txt:1: src/high does not stand above src/low"]))

    def test_a_room_inside_another_is_one_of_its_own(self):
        rooms = "hosts/a:\nhosts/a/inner:\n"
        files = {"hosts/a/x.hpp": "", "hosts/a/inner/y.cpp": '#include "hosts/a/x.hpp"\n'}
        self.assertEqual(
            self.check(rooms, files), (1, ['hosts/a/inner/y.cpp:1: hosts/a/inner may not use hosts/a: "hosts/a/x.hpp"'])
        )

    def test_a_file_outside_all_rooms_and_an_include_of_tests(self):
        files = {"src/low/a.cpp": '#include "tests/t.hpp"\n', "src/lost.cpp": "", "tests/t.hpp": ""}
        self.assertEqual(
            self.check("src/low:\n", files),
            (1, ["src/lost.cpp: lies in no room", 'src/low/a.cpp:1: src/low may not use what is no room: "tests/t.hpp"']),
        )


if __name__ == "__main__":
    unittest.main()
