"""A small house in a folder of its own shows that the check of the documents' paths finds what it is for."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).parents[2] / "scripts" / "doc_paths.py"


class DocPaths(unittest.TestCase):
    def check(self, documents, files=()):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**dict.fromkeys(files, ""), **documents}.items():
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
            return run.returncode, run.stdout.splitlines()

    def test_paths_that_are_there(self):
        text = "`src/a.cpp`, `src/`, `./run --fast src/*.cpp`.\n```\n./run  # src/a.cpp\n```\n"
        self.assertEqual(
            self.check({"README.md": text}, ["src/a.cpp", "run"]), (0, ["6 paths in the documents, all are there"])
        )

    def test_a_missing_path_is_named_with_its_line(self):
        text = "`src/a.cpp`\n\n`src/gone/` and `./run --in src/b.cpp`\n```\nplay {\"open\": [\"src/c.xlsx\"]}\n```\n"
        gone = ["README.md:3: there is no src/gone/", "README.md:3: there is no src/b.cpp"]
        self.assertEqual(
            self.check({"README.md": text}, ["src/a.cpp", "run"]), (1, gone + ["README.md:5: there is no src/c.xlsx"])
        )

    def test_links_start_from_their_own_file(self):
        text = "[a](b.md), [`x`](b.md#part), ![c](../c.png), [d](#part), [e](https://x.example/y)\n"
        text += "[f](docs/b.md) <img src=\"../c.png\" width=\"9\"> <img src=\"c.png\">\n"
        gone = ["docs/a.md:2: there is no docs/b.md", "docs/a.md:2: there is no c.png"]
        self.assertEqual(self.check({"docs/a.md": text}, ["docs/b.md", "c.png"]), (1, gone))

    def test_a_word_in_capitals_stands_for_any_name(self):
        text = "`src/NAME.cpp` `src/test_NAME.cpp` `src/FOLDER/x.cpp`\n"
        self.assertEqual(
            self.check({"README.md": text}, ["src/a.cpp", "src/test_a.cpp"]),
            (1, ["README.md:1: there is no src/FOLDER/x.cpp"]),
        )

    def test_what_is_not_looked_for(self):
        text = "`build/x/y` `/usr/gone` `~/.config/A B/2.6` `#DIV/0!` src/gone `a\\b` `https://x.example/y`\n"
        documents = {"README.md": text, "build/other.md": "`src/gone`\n"}
        self.assertEqual(self.check(documents), (0, ["0 paths in the documents, all are there"]))


if __name__ == "__main__":
    unittest.main()
