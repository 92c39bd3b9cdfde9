"""Ends a test where packages are missing: as skipped, but as failed where the environment variable CI is set."""

import os
import pathlib
import subprocess
import sys

SKIPPED = 77
PROJECT = pathlib.Path(__file__).resolve().parent.parent.parent
# The lists of the scripts, so that they find nothing to install when a test runs them.
MISSING = """
source scripts/lib/common.sh
for package in "${picture_packages[@]}" "${guide_packages[@]}" "$@"; do is_installed "$package" || echo "$package"; done
"""


def require_packages(*besides):
    """The packages that make the guide and its pictures, and those."""
    command = ["bash", "-c", MISSING, "requirements", *besides]
    missing = subprocess.run(command, cwd=PROJECT, capture_output=True, text=True).stdout.split()
    if not missing:
        return
    print(f"Not tested, as these packages are missing: {', '.join(missing)}. scripts/test installs them.")
    sys.exit(1 if os.environ.get("CI") else SKIPPED)
