#!/usr/bin/env python3
"""Tests that what the installer and the texts in the packages name is called so elsewhere, too: installer_test.py. The
installer itself is not run, as that takes PowerShell."""

import fnmatch
import pathlib
import re
import sys
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(PROJECT / "scripts" / "lib"))
from package_facts import HEADLESS_HOST, project

NAME = project()["PROJECT_NAME"]


def text_of(name):
    return (PROJECT / name).read_text(encoding="utf-8")


INSTALLER = text_of("packaging/install.ps1")
PACKAGE_README = text_of("packaging/README.txt.in")
GUIDE = text_of("docs/guide/guide.md")
# Where each kind of package is put, for all who tell of it.
ADDIN_FOLDER = rf"%APPDATA%\Autodesk\Autodesk Fusion 360\API\AddIns\{NAME}"
BUNDLE_CONTENTS = rf"%APPDATA%\Autodesk\ApplicationPlugins\{NAME}.bundle\Contents"


def constant(name):
    """The value of a variable that is set at the start of a line of the installer, paths put together."""
    found = re.search(rf"^\${name} = (?:Join-Path (\$[\w:]+) )?'([^']+)'$", INSTALLER, re.M)
    base, value = found.groups()
    if base is None:
        return value
    return ("%APPDATA%" if base == "$env:APPDATA" else constant(base[1:])) + "\\" + value


def patterns(name):
    listed = re.search(rf"^\${name} = @\((.*?)^\)", INSTALLER, re.M | re.S).group(1)
    return re.findall(r"'([^']+)'", listed)


def is_of_package(file, name="addInFiles"):
    return any(fnmatch.fnmatchcase(file.lower(), pattern.lower()) for pattern in patterns(name))


def headings():
    return re.findall(r"^#{1,2} (.+?)(?: \{:.*\})?$", GUIDE, re.M)


class Installer(unittest.TestCase):
    def test_tells_modules_of_the_headless_host_by_the_library_that_they_import(self):
        self.assertEqual(constant("headlessHost"), HEADLESS_HOST)

    def test_puts_the_folders_where_the_texts_say(self):
        self.assertEqual(constant("addIn"), ADDIN_FOLDER)
        self.assertEqual(constant("builder"), constant("api") + rf"\Scripts\{NAME}LibraryBuilder")
        self.assertIn(constant("api") + r"\AddIns", text_of("packaging/installing-folder.txt"))

    def test_looks_for_libraries_where_the_addin_does(self):
        kinds = re.findall(r"^    Show-MissingLibraries '(\w+)'", INSTALLER, re.M)
        sources = text_of("dialog/libraries.h") + text_of("dialog/libraries.cpp")
        self.assertEqual(kinds, ["Appearances", "Materials"])
        for kind in kinds:
            self.assertIn(f'"{kind}"', sources)
        self.assertIn('joinPath({"resources", "Libs", kind})', sources)
        self.assertIn(r"resources\Libs\$kind", INSTALLER)

    def test_knows_the_module_and_the_guide_by_their_names(self):
        guide = re.search(r'pathBesideModule\("([^"]+)"\)', text_of("shell/users_guide.cpp")).group(1)
        for file in (f"{NAME}.dll", f"{NAME}.manifest", f"{NAME}{guide}"):
            self.assertTrue(is_of_package(file), file)
        for file in (f"{NAME}LibraryBuilder.dll", f"{NAME}LibraryBuilder.manifest"):
            self.assertTrue(is_of_package(file, "builderFiles"), file)

    def test_leaves_what_is_the_users(self):
        source = text_of("shell/command_settings.cpp")
        before, after = re.search(r'pathBesideModule\("(\w+)" \+ hostUserString\(\) \+ "([\w.]+)"\)', source).groups()
        for file in (
            f"{NAME}{before}somebody{after}",
            r"resources\Libs\Appearances\RAL_COLORS.adsklib",
            r"resources\Libs\Appearances\Company.adsklib.bak",
            r"resources\Libs\Appearances\Company\wood.png",
            r"resources\Libs\Appearances\RAL_COLORS\Company.adsklib",
            r"resources\Libs\Appearances\RAL_COLORS\wood.png",
            r"resources\Libs\Appearances\RAL3000\16x16.png",
            r"resources\Libs\Materials\Engineering.adsklib",
            r"resources\Libs\Materials\Textures\steel.png",
            r"notes.txt",
        ):
            self.assertFalse(is_of_package(file), file)
            self.assertFalse(is_of_package(file, "builderFiles"), file)

    def test_names_chapters_that_the_guide_has(self):
        chapters = re.findall(r"^    Show-MissingLibraries '\w+' '([^']+)'$", INSTALLER, re.M)
        self.assertEqual(len(chapters), 2)
        for chapter in chapters:
            self.assertIn(chapter, headings())


class Texts(unittest.TestCase):
    def test_name_chapters_that_the_guide_has(self):
        chapters = re.findall(r'"([^"]+)"', " ".join(PACKAGE_README.split()))
        self.assertGreaterEqual(len(chapters), 3)
        for chapter in chapters:
            self.assertIn(chapter, headings())

    def test_name_the_folder_of_each_kind_of_package(self):
        builder = text_of("library_builder/messages.cpp").replace("\\\\", "\\").replace('"\n', "").replace('"', "")
        for text in (PACKAGE_README, " ".join(GUIDE.split()), re.sub(r" {2,}", "", builder)):
            self.assertIn(ADDIN_FOLDER, text)
            self.assertIn(BUNDLE_CONTENTS, text)

    def test_tell_where_the_script_of_the_bundle_lies(self):
        self.assertIn(rf"Contents\{NAME}LibraryBuilder", text_of("packaging/installing-bundle.txt"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
