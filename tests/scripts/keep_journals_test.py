#!/usr/bin/env python3
"""When keeping journals fails, with stand-ins for the test program."""
import os
import pathlib
import subprocess
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
WRITE_REPORT = """
for option in "$@"; do
  case $option in --gtest_output=xml:*) echo '<testsuites/>' >"${option#*xml:}" ;; esac
done
"""


class KeepJournals(unittest.TestCase):
    def play(self, program):
        """Runs it with that for the program's script; gives the outcome and what the program left in the journals."""
        with tempfile.TemporaryDirectory() as folder:
            tests = pathlib.Path(folder, "build", "tests", "tintora_tests")
            tests.parent.mkdir(parents=True)
            tests.write_text(f"#!/bin/bash\n{program}\n")
            tests.chmod(0o755)
            outcome = subprocess.run(
                [PROJECT / "scripts" / "lib" / "keep_journals", f"{folder}/build", f"{folder}/journals", "hostile"],
                capture_output=True,
                text=True,
                cwd=PROJECT,
            )
            left = {file.name: file.read_text() for file in pathlib.Path(folder, "journals").iterdir()}
            return outcome, left

    def test_all_parts_are_played_with_the_profile(self):
        outcome, left = self.play(
            WRITE_REPORT + 'echo "$TINTORA_PROFILE of $GTEST_TOTAL_SHARDS" >"$TINTORA_JOURNALS/$GTEST_SHARD_INDEX"'
        )
        self.assertEqual(outcome.returncode, 0, outcome.stderr)
        parts = len(os.sched_getaffinity(0))
        self.assertEqual(left, {str(part): f"hostile of {parts}\n" for part in range(parts)})

    def test_tests_that_fail_are_no_matter(self):
        self.assertEqual(self.play(WRITE_REPORT + "exit 1")[0].returncode, 0)

    def test_a_program_that_ends_early_is_one_and_its_last_words_are_shown(self):
        for program in (
            WRITE_REPORT + "echo Ouch; kill -SEGV $$",
            WRITE_REPORT + "echo Ouch; exit 3",
            "echo Ouch; exit 1",
            "echo Ouch; exit 0",
            WRITE_REPORT + '[ "$GTEST_SHARD_INDEX" != 0 ] || { echo Ouch; exit 5; }',
        ):
            with self.subTest(program=program):
                outcome, _ = self.play(program)
                self.assertEqual(outcome.returncode, 1)
                self.assertIn("Ouch\n", outcome.stderr)
                self.assertIn("ended early under a hostile host", outcome.stderr)


if __name__ == "__main__":
    unittest.main()
