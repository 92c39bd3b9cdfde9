#!/usr/bin/env python3
"""What counts as a passed test."""
import pathlib
import subprocess
import tempfile
import unittest

PROGRAM = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "lib" / "count_tests"
PASSED = '<testcase name="Works" status="run" classname="Suite"/>'
SKIPPED = '<testcase name="Skips" status="run" classname="Suite"><skipped message="file.cpp:1&#x0A;no Wine"/></testcase>'
FAILED = '<testcase name="Fails" status="run" classname="Suite"><failure message="no"/></testcase>'
SWITCHED_OFF = '<testcase name="DISABLED_Off" status="notrun" classname="Suite"/>'


class CountTests(unittest.TestCase):
    def count(self, *cases, options=()):
        with tempfile.TemporaryDirectory() as folder:
            for number, case in enumerate(cases):
                text = f"<testsuites><testsuite>{case}</testsuite></testsuites>"
                pathlib.Path(folder, f"{number}.xml").write_text(text)
            return subprocess.run([PROGRAM, *options, folder], capture_output=True, text=True)

    def test_passed_and_skipped_are_told_apart(self):
        outcome = self.count(PASSED, PASSED + SKIPPED)
        self.assertEqual((outcome.returncode, outcome.stdout), (0, "2 1\n"))

    def test_skipped_ones_are_named_with_their_reason(self):
        outcome = self.count(PASSED, SKIPPED, options=["--skipped"])
        self.assertEqual(outcome.stdout, "  skipped: Suite.Skips: no Wine\n")

    def test_failed_switched_off_or_no_tests_are_errors(self):
        for cases in ((PASSED, FAILED), (PASSED, SWITCHED_OFF), (SKIPPED,), ()):
            with self.subTest(cases=cases):
                self.assertEqual(self.count(*cases).returncode, 1)


if __name__ == "__main__":
    unittest.main()
