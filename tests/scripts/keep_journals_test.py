#!/usr/bin/env python3
"""When keeping journals fails, with stand-ins for the test programs."""
import itertools
import os
import pathlib
import subprocess
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
PROGRAMS = "tintora_tests", "cli_tests"
WRITE_REPORT = """
for option in "$@"; do
  case $option in --gtest_output=xml:*) echo '<testsuites/>' >"${option#*xml:}" ;; esac
done
"""


class KeepJournals(unittest.TestCase):
    def play(self, **programs):
        """Runs it with these for the scripts of the programs, where not named one of which all tests pass; gives the
        outcome and what the programs left in the journals."""
        with tempfile.TemporaryDirectory() as folder:
            for name in PROGRAMS:
                tests = pathlib.Path(folder, "build", "tests", name)
                tests.parent.mkdir(parents=True, exist_ok=True)
                tests.write_text(f"#!/bin/bash\n{programs.get(name, WRITE_REPORT)}\n")
                tests.chmod(0o755)
            outcome = subprocess.run(
                [PROJECT / "scripts" / "lib" / "keep_journals", f"{folder}/build", f"{folder}/journals", "hostile"],
                capture_output=True,
                text=True,
                cwd=PROJECT,
            )
            left = {file.name: file.read_text() for file in pathlib.Path(folder, "journals").iterdir()}
            return outcome, left

    def test_all_parts_of_the_programs_are_played_with_the_profile(self):
        leave = 'echo "$TINTORA_PROFILE of $GTEST_TOTAL_SHARDS" >"$TINTORA_JOURNALS/${0##*/} $GTEST_SHARD_INDEX"'
        outcome, left = self.play(**{name: WRITE_REPORT + leave for name in PROGRAMS})
        self.assertEqual(outcome.returncode, 0, outcome.stderr)
        parts = len(os.sched_getaffinity(0))
        self.assertEqual(left, {f"{name} {part}": f"hostile of {parts}\n" for name in PROGRAMS for part in range(parts)})

    def test_tests_that_have_nothing_to_add_are_left_out(self):
        _, left = self.play(cli_tests=WRITE_REPORT + 'echo "$GTEST_FILTER" >"$TINTORA_JOURNALS/filter"')
        self.assertRegex(left["filter"], r"^-([\w*.]+:)+$")
        self.assertIn(":*CallsPerObject*:", left["filter"])

    def test_tests_that_fail_are_no_matter(self):
        for name in PROGRAMS:
            self.assertEqual(self.play(**{name: WRITE_REPORT + "exit 1"})[0].returncode, 0)

    def test_a_program_that_ends_early_is_one_and_its_last_words_are_shown(self):
        for name, program in itertools.product(
            PROGRAMS,
            (
                WRITE_REPORT + "echo Ouch; kill -SEGV $$",
                WRITE_REPORT + "echo Ouch; exit 3",
                "echo Ouch; exit 1",
                "echo Ouch; exit 0",
                WRITE_REPORT + '[ "$GTEST_SHARD_INDEX" != 0 ] || { echo Ouch; exit 5; }',
            ),
        ):
            with self.subTest(name=name, program=program):
                outcome, _ = self.play(**{name: program})
                self.assertEqual(outcome.returncode, 1)
                self.assertIn("Ouch\n", outcome.stderr)
                self.assertRegex(outcome.stderr, f"{name} of .* ended early under a hostile host")


if __name__ == "__main__":
    unittest.main()
