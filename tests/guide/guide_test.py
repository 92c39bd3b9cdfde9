#!/usr/bin/python3
"""Tests of the user guide: guide_test.py. Ends with 77, which means skipped, where the tools are missing."""

import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml

import requirements

PROJECT = pathlib.Path(__file__).resolve().parent.parent.parent
GUIDE = PROJECT / "docs" / "guide" / "guide.md"


def copy_of_project(folder):
    """What making the guide takes, in another place."""
    for part in ("docs", "scripts"):
        shutil.copytree(PROJECT / part, folder / part)
    shutil.copy(PROJECT / "CMakeLists.txt", folder)
    return folder


def make_guide(project, pdf):
    return subprocess.run([project / "scripts" / "make_guide", pdf], capture_output=True, text=True)


def plain(text):
    """The text with one blank between words and straight quotes."""
    return " ".join(text.translate(str.maketrans("‘’“”", "''\"\"")).split())


def headings():
    """Level and text of each heading in the source."""
    found = re.findall(r"^(#{1,2}) (.+?)(?: \{:.*\})?$", GUIDE.read_text(encoding="utf-8"), re.M)
    return [(len(marks), plain(text)) for marks, text in found]


def pictures():
    return [(GUIDE.parent / name).resolve() for name in re.findall(r'src="([^"]+)"', GUIDE.read_text(encoding="utf-8"))]


def texts_in(source):
    """The string constants of a source file of the add-in, put together where they are split over lines."""
    text = (PROJECT / source).read_text(encoding="utf-8")
    return {
        "".join(re.findall(r'"([^"]*)"', value))
        for value in re.findall(r"constexpr const char\* \w+ =\s*((?:\"[^\"]*\"\s*)+);", text)
    }


class UsersGuide(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.pdf = pathlib.Path(cls.folder.name) / "guide.pdf"
        outcome = make_guide(PROJECT, cls.pdf)
        if outcome.returncode != 0:
            raise RuntimeError(outcome.stdout + outcome.stderr)
        info = subprocess.run(["pdfinfo", cls.pdf], capture_output=True, text=True, check=True).stdout
        cls.info = dict(re.findall(r"^(.+?):\s+(.*)$", info, re.M))
        cls.source = GUIDE.read_text(encoding="utf-8")
        cls.pages = [cls.text_of_page(number + 1) for number in range(int(cls.info["Pages"]))]

    @classmethod
    def text_of_page(cls, number):
        command = ["pdftotext", "-f", str(number), "-l", str(number), cls.pdf, "-"]
        return plain(subprocess.run(command, capture_output=True, text=True, check=True).stdout)

    def assert_says(self, text):
        # Words in another type have room around them, also before a comma.
        said = re.sub(r" (?=[,.;:])", "", " ".join(self.pages))
        self.assertTrue(text in said, f"the guide does not say: {text}")

    def test_has_eight_to_fifteen_pages_of_a4(self):
        self.assertTrue(8 <= len(self.pages) <= 15, len(self.pages))
        self.assertIn("A4", self.info["Page size"])

    def test_no_page_is_nearly_empty(self):
        for number, text in enumerate(self.pages[1:], 2):
            self.assertGreater(len(text.split()), 60, f"page {number}")

    def test_contents_name_every_heading_with_the_page_where_it_stands(self):
        contents = self.pages[1]
        self.assertGreater(len(headings()), 12)
        for level, heading in headings():
            # A dotted line leads to the number; the text of the page may hold it in any amount.
            entry = re.search(re.escape(heading) + r"[ .]*?(\d+)(?= |$)", contents)
            self.assertTrue(entry, f"{heading} is not in: {contents}")
            page = int(entry.group(1))
            self.assertIn(heading, self.pages[page - 1], f"{heading} is not on page {page}")

    def test_the_outline_has_every_heading(self):
        command = ["pdftohtml", "-xml", "-i", "-stdout", self.pdf]
        text = subprocess.run(command, capture_output=True, text=True, check=True).stdout
        outline = xml.fromstring(text[text.index("<outline>") : text.rindex("</outline>") + len("</outline>")])
        self.assertEqual([plain(item.text) for item in outline.iter("item")], [heading for _, heading in headings()])

    def test_every_reference_leads_to_a_page(self):
        text = " ".join(self.pages)
        references = re.findall(r'"([^"]+)", page (\d+)', text)
        self.assertGreaterEqual(len(references), 8)
        for heading, page in references:
            self.assertIn(heading, [text for _, text in headings()])
            self.assertIn(heading, self.pages[int(page) - 1])

    def test_every_picture_is_there(self):
        self.assertGreaterEqual(len(pictures()), 8)
        for picture in pictures():
            self.assertTrue(picture.is_file(), picture)

    def test_messages_are_quoted_letter_for_letter(self):
        quoted = texts_in("interaction/assignment.cpp") | {
            text for text in texts_in("inspection/appearance_source.cpp") if " " in text
        }
        quoted.discard("Tintora")
        self.assertGreaterEqual(len(quoted), 8)
        for message in quoted:
            self.assert_says(plain(message))

    def test_tells_the_way_to_the_library_in_the_words_of_the_library_builder(self):
        steps = {text for text in texts_in("library_builder/messages.cpp") if text.endswith(".")}
        self.assertEqual(len(steps), 5)
        for step in steps:
            self.assert_says(step.replace("\\\\", "\\"))
        # A library of materials is made in the same place.
        way = "Choose *Manage Materials* in the menu *Modify*: the material browser opens."
        for chapter in ("# Making the RAL library", "## A library of materials"):
            text = plain(self.source.split(f"\n{chapter}")[1].split("\n#")[0])
            self.assertIn(way, text)
            self.assertIn("Make a new user library in the material browser", text)
        self.assertIn(way.replace("*", ""), steps)

    def test_says_that_the_way_to_the_library_was_never_tried(self):
        chapter = plain(self.source.split("\n# Making the RAL library")[1].split("\n## ")[0])
        self.assertIn("<strong>Never tried.</strong> Steps 4 to 7", chapter)
        self.assertRegex(chapter, r"4\. Choose \*Manage Materials\*")
        self.assertRegex(chapter, r"7\. The library is a file")

    def test_names_the_labels_of_the_dialog(self):
        source = (PROJECT / "dialog" / "command_dialog.cpp").read_text(encoding="utf-8")
        labels = set(re.findall(r'L"([^"]+)"', source)) - {"Nothing selected"}
        self.assertGreaterEqual(len(labels), 14)
        guide = " ".join(GUIDE.read_text(encoding="utf-8").split())
        for label in labels:
            self.assertIn(f"*{label}*", guide, "labels are set in another type")
            self.assert_says(label)

    def test_the_version_is_that_of_the_project(self):
        version = re.search(r"^  VERSION ([\d.]+)$", (PROJECT / "CMakeLists.txt").read_text(), re.MULTILINE).group(1)
        self.assertIn(f"version {version}", self.pages[0])

    def test_fonts_are_embedded(self):
        fonts = subprocess.run(["pdffonts", self.pdf], capture_output=True, text=True, check=True).stdout.splitlines()[2:]
        self.assertTrue(fonts)
        for font in fonts:
            self.assertRegex(font, r" yes +(yes|no) +(yes|no) +\d", font)
            self.assertRegex(font, "Open-Sans|DejaVu", "a font that no package names")

    def test_the_same_sources_give_the_same_bytes_in_another_folder(self):
        with tempfile.TemporaryDirectory() as folder:
            again = pathlib.Path(folder) / "again.pdf"
            outcome = make_guide(copy_of_project(pathlib.Path(folder) / "project"), again)
            self.assertEqual(outcome.returncode, 0, outcome.stderr)
            self.assertTrue(again.read_bytes() == self.pdf.read_bytes(), "the two files differ")

    def test_a_missing_picture_is_an_error_and_leaves_no_file(self):
        with tempfile.TemporaryDirectory() as folder:
            project = copy_of_project(pathlib.Path(folder) / "project")
            (project / "docs" / "images" / "dialog.png").unlink()
            pdf = pathlib.Path(folder) / "none.pdf"
            outcome = make_guide(project, pdf)
            self.assertNotEqual(outcome.returncode, 0)
            self.assertIn("dialog.png", outcome.stderr)
            self.assertFalse(pdf.exists())


if __name__ == "__main__":
    requirements.require_packages()
    unittest.main(verbosity=2)
