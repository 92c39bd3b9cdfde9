#!/usr/bin/env python3
"""Tests that the check of the packages finds what is wrong with one: damaged_packages_test.py FOLDER, with the sound
packages in it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest
import zipfile

SCRIPTS = pathlib.Path(__file__).resolve().parents[2] / "scripts"
CHECK = SCRIPTS / "check_package"
sys.dont_write_bytecode = True
sys.path.insert(0, str(SCRIPTS / "lib"))
from package_facts import project

VERSION = project()["PROJECT_VERSION"]


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


def with_file_at_the_top(name):
    return lambda files, addin: files.update({name: b"x"})


def copied(source, target):
    return lambda files, addin: files.update({addin + target: files[addin + source]})


def changed(name, old, new):
    """In every file of that name, wherever it lies. A test fails where there is none, as the package stays sound."""

    def damage(files, addin):
        for file in files:
            if pathlib.PurePosixPath(file).name == name:
                files[file] = files[file].replace(old, new)

    return damage


def of_another_version(module):
    return changed(module, VERSION.encode("utf-16-le"), ("9" + VERSION[1:]).encode("utf-16-le"))


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
    "a manifest whose id is no GUID": (changed("Tintora.manifest", b'"id": "', b'"id": "x'), "GUID"),
    "a manifest for another system": (changed("Tintora.manifest", b'"windows"', b'"mac"'), "supportedOS"),
    "a manifest of another author": (changed("Tintora.manifest", b'"author": "', b'"author": "x'), "author"),
    "a script that says it is an add-in": (
        changed("TintoraLibraryBuilder.manifest", b'"script"', b'"addin"'),
        "TintoraLibraryBuilder.manifest: type",
    ),
    "a script with another description": (
        changed("TintoraLibraryBuilder.manifest", b'"": "', b'"": "x'),
        "TintoraLibraryBuilder.manifest: description",
    ),
    "no manifest of the script": (
        lambda files, addin: files.pop(next(name for name in files if name.endswith("Builder.manifest"))),
        "TintoraLibraryBuilder.manifest",
    ),
    "an icon of another size": (copied("resources/Button/16x16.png", "resources/Button/32x32.png"), "Button/32x32.png"),
    "a bundle of another name": (changed("PackageContents.xml", b' Name="Tintora"', b' Name="Tintura"'), "Name is"),
    "a bundle for another system": (changed("PackageContents.xml", b'"Win64"', b'"Win32"'), "Win64"),
    "a bundle without a code": (changed("PackageContents.xml", b'UpgradeCode="{', b'UpgradeCode="{x'), "GUID"),
    "a bundle that names another module": (
        changed("PackageContents.xml", b"/Tintora.dll", b"/Tintura.dll"),
        "Tintura.dll is not in the package",
    ),
    "a sum of another module": (changed("README.txt", b"SHA-256 ", b"SHA-256 0"), "describes other modules"),
    "an add-in of another version": (of_another_version("Tintora.dll"), "Tintora.dll: another version"),
    "a script of another version": (
        of_another_version("TintoraLibraryBuilder.dll"),
        "TintoraLibraryBuilder.dll: another version",
    ),
    "an add-in for 32 bits": (changed("Tintora.dll", b"PE\0\0\x64\x86", b"PE\0\0\x4c\x01"), "64-bit"),
    "a script for 32 bits": (changed("TintoraLibraryBuilder.dll", b"PE\0\0\x64\x86", b"PE\0\0\x4c\x01"), "64-bit"),
    "a file beside the folders": (with_file_at_the_top("notes.txt"), "notes.txt"),
    "an installer that forgets a folder": (changed("install.ps1", b"'resources\\Help\\*.png',", b""), "resources/Help"),
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
                        copy.writestr(entries.get(name, name), files[name], zipfile.ZIP_STORED)
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
                self.assertNotIn("Traceback", outcome.stderr, "the check itself failed")


if __name__ == "__main__":
    SOUND = pathlib.Path(sys.argv.pop()).resolve()
    unittest.main()
