"""What a reader needs of both manuals: text, pictures, fonts, bookmarks and links that lead somewhere."""

import html
import json
import pathlib
import re
import subprocess
import sys
import unittest

BUILD = pathlib.Path(sys.argv.pop(1))
SERIES = [one["name"] for one in json.loads((BUILD / "manual/series/series.json").read_text())]


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, encoding="utf-8").stdout


class English(unittest.TestCase):
    name = "UM_ZN64_Clockwright_EN.pdf"
    title = "ZN64 Clockwright User Manual"
    sentences = ["the program finds the PLL's parameters", "hext input error!", "Save file succeed!"]

    def setUp(self):
        self.path = str(BUILD / "Documents" / self.name)

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
        images = [line.split() for line in run("pdfimages", "-list", self.path).splitlines()[2:]]
        self.assertGreaterEqual(len(images), len(SERIES) + 12)
        for image in images:
            self.assertGreaterEqual(int(image[12]), 220, f"pixels per inch of a picture on page {image[0]}")

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
    sentences = ["程序就会求出 PLL 参数", "hext 输入错误！", "文件保存成功!"]

    def test_both_languages_have_the_same_headings(self):
        own = len(self.outline())
        self.path = str(BUILD / "Documents" / English.name)
        self.assertEqual(own, len(self.outline()))


unittest.main()
