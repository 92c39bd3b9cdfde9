#!/usr/bin/env python3
"""Tests that the check of the packages finds what is wrong with one: damaged_packages_test.py FOLDER, with the sound
packages in it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest
import zipfile

CHECK = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check_package"


def without(name):
    return lambda files, addin: files.pop(addin + name)


def with_file(name):
    return lambda files, addin: files.update({addin + name: b"x"})


def replaced(name, old, new, only_in=""):
    def damage(files, addin):
        if only_in in addin:
            assert old in files[addin + name]
            files[addin + name] = files[addin + name].replace(old, new)

    return damage


# What is done to the add-in's folder, and a word of what the check says.
DAMAGES = {
    "no module": (without("Tintora.dll"), "Tintora.dll"),
    "another module in the bundle": (replaced("Tintora.dll", b"RAL_COLORS", b"RAL_colors", "bundle"), "different"),
    "no guide": (without("Tintora_UsersGuide.pdf"), "Tintora_UsersGuide.pdf"),
    "no folder for materials": (without("resources/Libs/Materials/"), "Materials"),
    "a library of the headless host": (with_file("resources/Libs/Materials/Engineering.adsklib"), "adsklib"),
    "somebody's settings": (with_file("Tintora_USER_CmdSet.txt"), "CmdSet"),
    "an object file": (with_file("addin.obj"), "addin.obj"),
    "no large icon": (without("resources/Button/64x64.png"), "64x64"),
    "no icon for high density": (without("resources/Button/16x16@2x.png"), "16x16@2x"),
    "no icon for the dark theme": (without("resources/Button/32x32-dark_blue.png"), "32x32-dark_blue"),
    "no swatch": (without("resources/Libs/Appearances/RAL_COLORS/RAL3000/16x16.png"), "RAL3000"),
    "a manifest that is no JSON": (replaced("Tintora.manifest", b"{", b"("), "manifest"),
    "a manifest of another version": (replaced("Tintora.manifest", b'"version": "', b'"version": "9'), "version"),
}


class DamagedPackages(unittest.TestCase):
    def check(self, damage=lambda files, addin: None):
        with tempfile.TemporaryDirectory() as folder:
            for package in SOUND.glob("*.zip"):
                with zipfile.ZipFile(package) as sound:
                    entries = {entry.filename: entry for entry in sound.infolist()}
                    files = {name: sound.read(name) for name in entries}
                damage(files, "Tintora.bundle/Contents/" if "bundle" in package.name else "Tintora/")
                with zipfile.ZipFile(pathlib.Path(folder, package.name), "w") as copy:
                    for name in sorted(files):
                        copy.writestr(entries.get(name, name), files[name])
            return subprocess.run([CHECK, folder], capture_output=True, text=True)

    def test_sound_packages_pass(self):
        outcome = self.check()
        self.assertEqual(outcome.returncode, 0, outcome.stdout + outcome.stderr)

    def test_damage_is_found_and_named(self):
        for title, (damage, word) in DAMAGES.items():
            with self.subTest(title):
                outcome = self.check(damage)
                self.assertEqual(outcome.returncode, 1, outcome.stdout)
                self.assertIn(word, outcome.stdout + outcome.stderr)


if __name__ == "__main__":
    SOUND = pathlib.Path(sys.argv.pop()).resolve()
    unittest.main()
