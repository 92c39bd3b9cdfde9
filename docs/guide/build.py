"""Turns guide.md, guide.css and the pictures beside them into a PDF file: python3 build.py OUT.pdf"""

import logging
import pathlib
import re
import sys

import markdown
import weasyprint

FOLDER = pathlib.Path(__file__).resolve().parent
PROJECT = FOLDER.parent.parent
# Pictures are named in the PDF by their addresses, which must not tell where the project lies.
ADDRESS = "file:///tintora/"


def version():
    text = (PROJECT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"^  VERSION ([\d.]+)$", text, re.MULTILINE).group(1)


def html():
    source = (FOLDER / "guide.md").read_text(encoding="utf-8").replace("@VERSION@", version())
    extensions = ["attr_list", "md_in_html", "smarty", "tables", "toc"]
    body = markdown.markdown(source, extensions=extensions, extension_configs={"toc": {"toc_depth": "1-2"}})
    return (
        '<!doctype html><html lang="en"><head><meta charset="utf-8"><title>Tintora User\'s Guide</title>'
        f'<link rel="stylesheet" href="guide.css"></head><body>{body}</body></html>'
    )


def fetched(url):
    return weasyprint.default_url_fetcher(url.replace(ADDRESS, PROJECT.as_uri() + "/"))


class Problems(logging.Handler):
    """Collects what the PDF maker complains about, such as a picture that is not there."""

    def __init__(self):
        super().__init__(logging.WARNING)
        self.texts = []

    def emit(self, record):
        self.texts.append(record.getMessage())


def main():
    problems = Problems()
    weasyprint.LOGGER.handlers = [problems]
    weasyprint.HTML(string=html(), base_url=ADDRESS + "docs/guide/", url_fetcher=fetched).write_pdf(sys.argv[1])
    if problems.texts:
        sys.exit("The guide has problems:\n  " + "\n  ".join(problems.texts))


main()
