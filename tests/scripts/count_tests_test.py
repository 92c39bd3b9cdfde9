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
SKIPPED_SILENTLY = '<testcase name="Hides" status="run" classname="Suite"><skipped message=""/></testcase>'
SWITCHED_OFF = '<testcase name="DISABLED_Off" status="notrun" classname="Suite"/>'

# The same as CTest writes it.
OF_CTEST = {
    "passed": '<testcase name="Script" status="run"/>',
    "program": '<testcase name="0" status="run"/>',
    "program that crashed": '<testcase name="0" status="fail"><failure message=""/></testcase>',
    "skipped": '<testcase name="Guide" status="notrun"><skipped message="SKIP_RETURN_CODE=77"/>'
    "<system-out>Looking.\nNo fonts.\n</system-out></testcase>",
    "failed": '<testcase name="Script" status="fail"><failure message=""/></testcase>',
    "switched off": '<testcase name="Script" status="disabled"/>',
    "not run": '<testcase name="Script" status="notrun"><skipped message="Fixture dependency failed"/></testcase>',
}


class CountTests(unittest.TestCase):
    def count(self, *cases, options=(), ctest=()):
        with tempfile.TemporaryDirectory() as folder:
            if ctest:
                text = "".join(OF_CTEST[case] for case in ctest)
                pathlib.Path(folder, "ctest.xml").write_text(f"<testsuite>{text}</testsuite>")
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

    def test_skipped_without_a_reason_is_named_too(self):
        for case in (SKIPPED_SILENTLY, SKIPPED_SILENTLY.replace(' message=""', "")):
            outcome = self.count(PASSED, case, options=["--skipped"])
            self.assertEqual((outcome.returncode, outcome.stdout), (0, "  skipped: Suite.Hides: no reason given\n"))

    def test_what_only_ctest_reports_counts_too(self):
        outcome = self.count(PASSED + PASSED, ctest=["program", "passed", "skipped"])
        self.assertEqual((outcome.returncode, outcome.stdout), (0, "3 1\n"))
        outcome = self.count(PASSED, ctest=["program", "skipped"], options=["--skipped"])
        self.assertEqual(outcome.stdout, "  skipped: Guide: No fonts.\n")

    def test_what_ctest_could_not_run_or_saw_failing_is_an_error(self):
        for case in ("program that crashed", "failed", "switched off", "not run"):
            with self.subTest(case=case):
                outcome = self.count(PASSED, ctest=[case])
                self.assertEqual(outcome.returncode, 1)
                self.assertIn("Failed or switched off: " + ("0" if "program" in case else "Script"), outcome.stderr)

    def test_failed_switched_off_or_no_tests_are_errors(self):
        for cases in ((PASSED, FAILED), (PASSED, SWITCHED_OFF), (SKIPPED,), ()):
            with self.subTest(cases=cases):
                self.assertEqual(self.count(*cases).returncode, 1)


if __name__ == "__main__":
    unittest.main()
