#!/usr/bin/env python3
"""What comparing the journals of two systems lets through and what it does not."""
import pathlib
import subprocess
import tempfile
import unittest

PROGRAM = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "lib" / "compare_journals"
CALLS = "Application.get() -> Application\nApplication.userInterface() -> UserInterface\n"
PROFILES = "lenient", "documented", "hostile"


def sitting(calls):
    """A journal of one sitting, with each line written out."""
    lines = (calls if isinstance(calls, bytes) else calls.encode()).splitlines(keepends=True)
    return b"=sitting 1\n" + b"".join(b"+" + line for line in lines)


def keep(folder, profiles):
    for profile, journals in profiles.items():
        place = pathlib.Path(folder, profile)
        place.mkdir(parents=True)
        for scenario, journal in journals.items():
            (place / f"{scenario}.txt").write_bytes(journal)


class CompareJournals(unittest.TestCase):
    def compare_profiles(self, native, windows):
        with tempfile.TemporaryDirectory() as folder:
            keep(f"{folder}/native", native)
            keep(f"{folder}/windows", windows)
            return subprocess.run([PROGRAM, f"{folder}/native", f"{folder}/windows"], capture_output=True, text=True)

    def compare_journals(self, native, windows):
        """Of the documented profile; under the others all scenarios are the same on both systems."""
        systems = []
        for documented in (native, windows):
            others = {name: sitting(CALLS) for name in documented or ["Suite.Other"]}
            systems.append({**{profile: others for profile in PROFILES}, "documented": documented})
        return self.compare_profiles(*systems)

    def compare(self, native, windows):
        """The same of scenarios with one sitting each."""
        both = ({name: sitting(calls) for name, calls in system.items()} for system in (native, windows))
        return self.compare_journals(*both)

    def test_the_same_calls_are_the_same(self):
        outcome = self.compare({"Suite.Test": CALLS}, {"Suite.Test": CALLS})
        self.assertEqual(outcome.returncode, 0)
        for profile in PROFILES:
            counted = f"{profile}: 1 scenarios with 2 calls and events compared, 0 differ\n"
            self.assertIn(counted, outcome.stdout)

    def test_another_answer_is_shown_with_the_calls_before_it(self):
        outcome = self.compare({"Suite.Test": CALLS}, {"Suite.Test": CALLS.replace("UserInterface\n", "none\n")})
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("documented/Suite.Test, sitting 1, line 3:\n      Application.get()", outcome.stdout)
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

    def test_a_scenario_of_one_system_is_named_with_its_profile(self):
        outcome = self.compare({"Suite.Test": CALLS}, {"Suite.Test": CALLS, "Paths.Test": CALLS})
        self.assertIn("only on Windows: documented/Paths.Test", outcome.stdout)

    def test_nothing_to_compare_is_an_error(self):
        self.assertEqual(self.compare({}, {}).returncode, 1)

    def test_a_profile_is_missed_on_one_system_and_on_both(self):
        journals = {"Suite.Test": sitting(CALLS)}
        whole = {profile: journals for profile in PROFILES}
        for profile in PROFILES:
            rest = {other: journals for other in PROFILES if other != profile}
            for native, windows in ((rest, whole), (whole, rest), (rest, rest)):
                with self.subTest(profile=profile, native=native.keys(), windows=windows.keys()):
                    outcome = self.compare_profiles(native, windows)
                    self.assertEqual(outcome.returncode, 1)
                    self.assertIn(f"{profile}: there is nothing to compare", outcome.stdout)

    def test_a_scenario_under_one_profile_only_is_missed_under_the_others(self):
        one, both = ({name: sitting(CALLS) for name in names} for names in (["Suite.A"], ["Suite.A", "Suite.B"]))
        whole = {profile: both for profile in PROFILES}
        for profile in "lenient", "hostile":
            less = {**whole, profile: one}
            for native, windows, systems in ((less, whole, "native"), (whole, less, "windows"), (less, less, "both")):
                with self.subTest(profile=profile, missing=systems):
                    outcome = self.compare_profiles(native, windows)
                    self.assertEqual(outcome.returncode, 1)
                    for system, name in ("natively", "native"), ("on Windows", "windows"):
                        line = f"missing {system}: {profile}/Suite.B\n"
                        self.assertEqual(line in outcome.stdout, systems in (name, "both"))

    def test_scenarios_that_are_not_played_under_the_others_are_not_missed(self):
        names = "Profiles.DemoUnderProfile.Works.hostile", "FaultSweep.EndsWell", "Component.HasBodies"
        one, more = ({name: sitting(CALLS) for name in ("Suite.A", *others)} for others in ((), names))
        system = {**{profile: one for profile in PROFILES}, "documented": more}
        outcome = self.compare_profiles(system, system)
        self.assertEqual(outcome.returncode, 0, outcome.stdout)

    def test_a_difference_under_any_profile_is_shown(self):
        journals = {"Suite.Test": sitting(CALLS)}
        whole = {profile: journals for profile in PROFILES}
        for profile in PROFILES:
            with self.subTest(profile=profile):
                outcome = self.compare_profiles(whole, {**whole, profile: {"Suite.Test": sitting(CALLS[:-1] + "!\n")}})
                self.assertEqual(outcome.returncode, 1)
                self.assertIn(f"{profile}/Suite.Test, sitting 1, line 3:", outcome.stdout)

    def test_known_lines_stand_for_calls_that_are_counted_and_shown(self):
        first = b"=sitting 1, whole\n+A.a() -> 1\n+A.b() -> 2\n+A.c() -> 3\n"
        native = first + b"=sitting 2, A.b number 1 raises\n1-3\n1\n"
        windows = first + b"=sitting 2, A.b number 1 raises\n1-2\n+A.c() -> 4\n1\n"
        outcome = self.compare_journals({"Suite.Test": native}, {"Suite.Test": native})
        self.assertEqual(outcome.returncode, 0)
        self.assertIn("documented: 1 scenarios with 7 calls", outcome.stdout)
        outcome = self.compare_journals({"Suite.Test": native}, {"Suite.Test": windows})
        self.assertEqual(outcome.returncode, 1)
        self.assertIn(
            "documented/Suite.Test, sitting 2, A.b number 1 raises, line 6:\n"
            "      A.a() -> 1\n      A.b() -> 2\n    - A.c() -> 3\n    + A.c() -> 4\n",
            outcome.stdout,
        )

    def test_a_sitting_too_few_is_a_difference(self):
        native = b"=sitting 1\n+A.a() -> 1\n=sitting 2\n1\n"
        outcome = self.compare_journals({"Suite.Test": native}, {"Suite.Test": native[: native.index(b"=sitting 2")]})
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("    - =sitting 2\n    + (ends here)", outcome.stdout)

    def test_a_call_whose_argument_has_several_lines_counts_once(self):
        outcome = self.compare(*2 * [{"Suite.Test": '# event\nUserInterface.messageBox("One\ntwo\n\nthree") -> 0\n'}])
        self.assertIn("documented: 1 scenarios with 2 calls and events compared", outcome.stdout)

    def test_calls_in_another_order_are_a_difference(self):
        looks = [f"BRepBody({name}).appearance=(Appearance(Red)) -> true\n" for name in ("A", "B")]
        outcome = self.compare({"Suite.Test": "".join(looks)}, {"Suite.Test": "".join(reversed(looks))})
        self.assertEqual(outcome.returncode, 1)
        self.assertIn("1 differ", outcome.stdout)
        self.assertIn("    - BRepBody(A).appearance=(Appearance(Red)) -> true\n    + BRepBody(B)", outcome.stdout)

    def test_of_many_differences_some_are_shown_and_the_others_counted(self):
        native = {f"Suite.Test{number}": CALLS for number in range(25)}
        outcome = self.compare(native, dict.fromkeys(native, CALLS[:-1] + "!\n"))
        self.assertEqual(outcome.stdout.count("documented/Suite.Test"), 20)
        self.assertTrue(outcome.stdout.endswith("\nand 5 more that are not shown\n"))

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
