"""What a reader needs of both manuals: text, pictures, fonts, bookmarks and links that lead somewhere."""

import html
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from PIL import Image, ImageOps

BUILD = pathlib.Path(sys.argv.pop(1))
PICTURES = {path.stem: suffix for suffix in ("png", "svg") for path in (BUILD / "manual/en").glob(f"*.{suffix}")}
SERIES = [one["name"] for one in json.loads((BUILD / "manual/series/series.json").read_text())]


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, encoding="utf-8").stdout


class English(unittest.TestCase):
    name = "UM_ZN64_Clockwright_EN.pdf"
    title = "ZN64 Clockwright User Manual"
    language = b"en"
    figures = len(SERIES) + len(PICTURES)
    sentences = ["the program finds the PLL's parameters", "hext input error!", "Save file succeed!"]

    def setUp(self):
        self.path = str(BUILD / "Documents" / self.name)

    def images(self):
        return [line.split() for line in run("pdfimages", "-list", self.path).splitlines()[2:]]

    def outline(self):
        self.xml = run("pdftohtml", "-xml", "-i", "-stdout", self.path)
        return [(html.unescape(text), page)
                for page, text in re.findall(r'<item page="(\d+)">([^<]*)</item>', self.xml)]

    def test_title_pages_and_text(self):
        info = dict(re.findall(r"^([\w ]+): +(.*)$", run("pdfinfo", self.path), re.M))
        self.assertEqual((info["Title"], info["Author"]), (self.title, "ZN64 Clockwright"))
        self.assertIn(int(info["Pages"]) - len(SERIES), range(12, 26))
        text = re.sub(r"\s", "", run("pdftotext", self.path, "-"))
        for sentence in self.sentences:
            self.assertIn(sentence.replace(" ", ""), text)

    def test_pictures_are_fine_enough_for_print(self):
        self.assertEqual(len(self.images()), list(PICTURES.values()).count("png"), "trees are drawn")
        self.assertLess(pathlib.Path(self.path).stat().st_size, 2000000)
        for image in self.images():
            self.assertGreaterEqual(int(image[12]), 220, f"pixels per inch of a picture on page {image[0]}")
            self.assertEqual(image[5], "index", f"a picture on page {image[0]} is large")

    def test_can_be_read_aloud(self):
        tags = run("pdfinfo", "-struct", self.path).splitlines()
        self.assertEqual(sum(line.strip() == "Figure" for line in tags), self.figures)
        self.assertGreaterEqual(sum(line.strip() == "H1 (block)" for line in tags), 13)
        raw = pathlib.Path(self.path).read_bytes()
        alternatives = [re.sub(rb"\s", b"", each) for each in re.findall(rb"/Alt (<[^>]*>|\([^)]*\))", raw)]
        self.assertEqual(len(alternatives), self.figures)
        self.assertTrue(all(len(each) > 6 for each in alternatives))
        for wanted in (b"/DisplayDocTitle true", b"/PageMode /UseOutlines", b"/Lang (" + self.language):
            self.assertIn(wanted, raw)

    def test_no_page_is_nearly_empty(self):
        with tempfile.TemporaryDirectory() as folder:
            run("pdftoppm", "-r", "20", "-gray", self.path, f"{folder}/page")
            for path in sorted(pathlib.Path(folder).iterdir()):
                with Image.open(path) as page:
                    body = page.crop((0, 0, page.width, int(page.height * 0.93)))
                    ink = ImageOps.invert(body).point(lambda value: value > 40 and 255).getbbox()
                    self.assertGreater(ink[3], page.height * 0.3, path.name)

    def test_fonts_are_the_wanted_ones_and_embedded(self):
        for line in run("pdffonts", self.path).splitlines()[2:]:
            self.assertRegex(line, r"^\w+\+(Liberation|WenQuanYi)")
            self.assertEqual(line.split()[-5:-2], ["yes", "yes", "yes"], line)  # embedded, subset, to Unicode

    def test_every_series_has_one_page_with_bookmark_and_link(self):
        series = self.outline()[-len(SERIES):]
        pages = len(re.findall("<page ", self.xml))
        self.assertEqual(series, [(name, str(pages - len(SERIES) + 1 + i)) for i, name in enumerate(SERIES)])
        links = re.findall(r'<a href="[^"#]*#(\d+)">(?:<b>)?([^<]*)', self.xml)
        self.assertLessEqual(set(series), {(text.strip(), page) for page, text in links})


class Chinese(English):
    name = "UM_ZN64_Clockwright.pdf"
    title = "ZN64 Clockwright 用户手册"
    language = b"zh-CN"
    sentences = ["程序就会求出 PLL 参数", "hext 输入错误！", "文件保存成功!"]

    def test_both_languages_have_the_same_headings(self):
        own = len(self.outline())
        self.path = str(BUILD / "Documents" / English.name)
        self.assertEqual(own, len(self.outline()))


unittest.main()
