#!/usr/bin/env python3
"""What comparing the journals of two systems lets through and what it does not."""
import pathlib
import subprocess
import tempfile
import unittest

PROGRAM = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "lib" / "compare_journals"
CALLS = "Application.get() -> Application\nApplication.userInterface() -> UserInterface\n"


class CompareJournals(unittest.TestCase):
    def compare(self, native, windows):
        with tempfile.TemporaryDirectory() as folder:
            for name, journals in (("native", native), ("windows", windows)):
                place = pathlib.Path(folder, name)
                place.mkdir()
                for scenario, text in journals.items():
                    (place / f"{scenario}.1.txt").write_bytes(text if isinstance(text, bytes) else text.encode())
            return subprocess.run([PROGRAM, f"{folder}/native", f"{folder}/windows"], capture_output=True, text=True)

    def test_the_same_calls_are_the_same(self):
        outcome = self.compare({"Suite.Test": CALLS}, {"Suite.Test": CALLS})
        self.assertEqual(outcome.returncode, 0)
        self.assertIn("1 scenarios with 2 calls and events compared, 0 differ, 0 are equal but", outcome.stdout)

    def test_another_answer_is_shown_with_the_calls_before_it(self):
        outcome = self.compare({"Suite.Test": CALLS}, {"Suite.Test": CALLS.replace("UserInterface\n", "none\n")})
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("Suite.Test.1.txt, line 2:\n      Application.get()", outcome.stdout)
        self.assertIn("    + Application.userInterface() -> none", outcome.stdout)

    def test_a_call_too_few_is_a_difference(self):
        outcome = self.compare({"Suite.Test": CALLS}, {"Suite.Test": CALLS.splitlines()[0] + "\n"})
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("(ends here)", outcome.stdout)

    def test_a_scenario_of_one_system_must_be_about_that_system(self):
        both = {"Suite.Test": CALLS}
        for native, windows, code in (
            ({"PosixPaths.Test": CALLS}, {}, 0),
            ({}, {"Values.WindowsPaths.Test": CALLS}, 0),
            ({"Paths.TestOfPosix": CALLS}, {}, 1),
            ({"WindowsPaths.Test": CALLS}, {}, 1),
            ({}, {"Paths.Test": CALLS}, 1),
        ):
            with self.subTest(native=native, windows=windows):
                self.assertEqual(self.compare({**both, **native}, {**both, **windows}).returncode, code)

    def test_nothing_to_compare_is_an_error(self):
        self.assertEqual(self.compare({}, {}).returncode, 1)

    def test_only_looks_that_are_put_back_may_come_in_another_order(self):
        put_back = [f"BRepBody({name}).appearance=(Appearance(Red)) -> true\n" for name in ("A", "B")]
        cleared = [f"BRepBody({name}).appearance=(none) -> true\n" for name in ("A", "B")]
        names = [f'Appearance({name}).name() -> "{name}"\n' for name in ("A", "B")]
        for scenario, lines, code in (
            ("Suite.Test", put_back, 0),
            ("Suite.Test", cleared, 1),
            ("Suite.Test", names, 1),
            ("Inventory.Test", names, 0),
        ):
            with self.subTest(lines=lines):
                outcome = self.compare({scenario: "".join(lines)}, {scenario: "".join(reversed(lines))})
                self.assertEqual(outcome.returncode, code)
                self.assertIn("0 differ, 1 are equal but for" if code == 0 else "1 differ, 0 are equal but", outcome.stdout)

    def test_bytes_are_compared_and_not_the_text_that_they_may_stand_for(self):
        for native, windows, shown in (
            (b'Document.name() -> "\xfc"\n', b'Document.name() -> "\xf6"\n', "\\xfc"),
            (b'Document.name() -> "\xfc"\n', 'Document.name() -> "\ufffd"\n'.encode(), "\\xfc"),
            (CALLS.encode(), CALLS.replace("\n", "\r\n").encode(), "\\r"),
        ):
            with self.subTest(native=native, windows=windows):
                outcome = self.compare({"Suite.Test": native}, {"Suite.Test": windows})
                self.assertEqual(outcome.returncode, 1)
                self.assertIn("1 differ", outcome.stdout)
                self.assertIn(shown, outcome.stdout)


if __name__ == "__main__":
    unittest.main()
