#!/usr/bin/python3
"""Tests that the pictures in docs/images are what the program draws now: pictures_test.py TINTORA-HOST"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

import requirements

PROJECT = pathlib.Path(__file__).resolve().parent.parent.parent
IMAGES = PROJECT / "docs" / "images"
HINT = "run scripts/make_pictures, look at the pictures and commit them"


class Pictures(unittest.TestCase):
    def test_are_those_that_the_program_draws(self):
        with tempfile.TemporaryDirectory() as folder:
            command = [PROJECT / "scripts" / "make_pictures", folder, PROGRAM]
            outcome = subprocess.run(command, capture_output=True, text=True)
            self.assertEqual(outcome.returncode, 0, outcome.stdout + outcome.stderr)
            made = sorted(file.name for file in pathlib.Path(folder).iterdir())
            committed = {file.name for file in IMAGES.iterdir()} - {"icons.png"}
            self.assertEqual(committed - set(made), set(), f"no longer made: {HINT}")
            for name in made:
                self.assertTrue((IMAGES / name).is_file(), f"{name} is new: {HINT}")
                is_same = (IMAGES / name).read_bytes() == (pathlib.Path(folder) / name).read_bytes()
                self.assertTrue(is_same, f"{name} is out of date: {HINT}")


if __name__ == "__main__":
    PROGRAM = pathlib.Path(sys.argv.pop()).resolve()
    requirements.require_packages("gmsh-doc")
    unittest.main(verbosity=2)
