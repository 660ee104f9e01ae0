#!/usr/bin/python3
"""Makes the PDF of one language from its chapters, the program's texts, its pictures and the series' facts."""

import argparse
import html
import io
import json
import logging
import os
import pathlib
import re
import struct
import sys
import zlib

import jinja2
import markdown
import pydyf
import weasyprint
from markupsafe import Markup
from PIL import Image

HERE = pathlib.Path(__file__).parent
PIXELS_PER_MM = 5.5  # of a screen


class Texts:
    """The texts of the program in one language, and which of them the manual has shown."""

    def __init__(self, paths, language):
        self.language = language
        rows = [row for path in paths for row in json.loads(path.read_text())["texts"]]
        self.rows = {row["source"]: row for row in reversed(rows)}
        self.shown = set()

    def __call__(self, source):
        self.shown.add(source)
        row = self.rows[source]
        return row.get(self.language) or source

    def missing(self, left_out):
        return sorted(set(self.rows) - self.shown - set(left_out))


class Page:
    """What the chapters can call."""

    def __init__(self, language, texts, pictures):
        self.words = {key: each[language] for key, each in load("words.json").items()}
        self.text = texts
        self.pictures = pictures
        self.files = {path.stem: path for suffix in ("png", "svg") for path in pictures.glob(f"*.{suffix}")}
        self.unseen = set(self.files)

    def ui(self, *sources):
        """A text of the interface; several are the way through a menu."""
        way = " → ".join(html.escape(self.text(source).strip()) for source in sources)
        return Markup(f'<b class="ui">{way}</b>')

    def box(self, icon, title, text, buttons, before="", after="", caller=None):
        """A message box as the program shows it, and beside it what it means."""
        drawn = "".join(f"<span>{html.escape(self.text(each).strip())}</span>" for each in buttons)
        meaning = markdown.markdown(caller().strip())
        return Markup(
            f'<table class="boxrow"><tr><td><div class="box"><div class="title {icon}">{html.escape(self.text(title))}'
            f'</div><div class="text">{html.escape(before + self.text(text) + after)}</div>'
            f'<div class="buttons">{drawn}</div></div></td><td>{meaning}</td></tr></table>\n')

    def picture(self, name, caption, mm=None, beside=False):
        """A picture of the program; dialogs get the title bar that the desktop would give them. The text can run
        beside it."""
        path = self.files[name]
        self.unseen.discard(name)
        pixels, title = size_and_title(path)
        width = min(mm or pixels / PIXELS_PER_MM, 170)
        bar = f'<div class="bar">{html.escape(title)}</div>' if title else ""
        place = f' class="beside" style="width: {width:.0f}mm"' if beside else ""
        shot = f'<p class="shot"><img src="{address(path)}" alt="{caption}"></p>'
        image = f'<div style="width: {width:.0f}mm">{bar}{shot}</div>'
        return Markup(f"<figure{place}>{image}<figcaption>{caption}</figcaption></figure>")

    def code(self, lead, name, first="", last=None):
        """A generated file, or its lines from the first that holds one text, or from the start of its comment, to the
        next that holds another, on the page of the words that lead to it."""
        lines = (self.pictures / name).read_text().replace("\r", "").rstrip().split("\n")
        start = next(i for i, line in enumerate(lines) if first in line)
        end = next(i for i in range(start, len(lines)) if last in lines[i]) if last is not None else len(lines) - 1
        while lines[start].lstrip().startswith("*"):
            start -= 1
        text = html.escape("\n".join(lines[start:end + 1]))
        return Markup(f'<div class="listing">{markdown.markdown(lead)}<pre>{text}</pre></div>')


def joined_lines(text):
    """Chinese has no blanks between words: a line break in the source must not become one."""
    chinese = "[\u3000-\u9fff\uff00-\uffef\u201c\u201d]"
    return re.sub(rf'({chinese}|</b>)\n *(?={chinese}|<b class="ui">)', r"\1", text)


def address(path):
    """The PDF names a picture by its address, which must not depend on the folder of the build."""
    return f"picture:{path.parent.name}/{path.name}"


def size_and_title(path):
    """The width of a picture in the pixels of a screen, and the title of its window, which a drawn one lacks."""
    if path.suffix == ".svg":
        return float(re.search(r'viewBox="0 0 (\S+)', path.read_text()).group(1)), ""
    with Image.open(path) as image:
        return image.width / 2, image.text.get("Title", "")


def load(name):
    return json.loads((HERE / name).read_text())


def spans(numbers):
    """"2 to 31" for a run of whole steps, otherwise all of them."""
    steps = {b - a for a, b in zip(numbers, numbers[1:])}
    if len(numbers) > 3 and len(steps) == 1:
        step = steps.pop()
        run = f"{numbers[0]:g}–{numbers[-1]:g}"
        return run if step == 1 else f"{run} (+{step:g})"
    return ", ".join(f"{each:g}" for each in numbers)


def limits_table(series):
    """Per clock what is painted red, and what saving and generating refuse or ask about."""
    rows = {}

    def cell(column, limit):
        name = limit["clock"] + (" normal" if limit["bound"] == "below" else "")
        number = f"{limit['compared']:g}"
        sign = {"above": "> ", "below": "< ", "exactly": "≠ "}[limit["bound"]]
        shown = limit["shown"]
        rows.setdefault(name, dict.fromkeys(("painted", "saving", "generating")))[column] = {
            "text": sign + number, "asks": column != "painted" and shown is None,
            "told": shown if column != "painted" and shown not in (None, limit["compared"]) else None}

    if series["usb"]:
        cell("painted", {"clock": "usb", "bound": "exactly", "compared": 48, "shown": None})
    for column in ("painted", "saving", "generating"):
        for limit in series[column]:
            # Without a switch the page knows no clock of the ADC, and never judges one.
            if limit["clock"] != "adc" or series["adcSwitch"]:
                cell(column, limit)
    if series["generatedApb3"]:
        cell("generating", {"clock": "apb3", "bound": "above", "compared": series["generatedApb3"], "shown": None})
        rows["apb3"]["generating"]["asks"] = False
    order = ["sclk", "ahb", "apb1", "apb1 timer", "apb2", "apb2 timer", "apb3", "pll", "pll normal", "adc", "usb",
             "usb phy"]
    return sorted(rows.items(), key=lambda row: order.index(row[0]))


def build_html(page, language, version, facts_folder):
    env = jinja2.Environment(loader=jinja2.FileSystemLoader(HERE), undefined=jinja2.StrictUndefined,
                             trim_blocks=True, lstrip_blocks=True,
                             comment_start_string="<#", comment_end_string="#>")  # headings have {#names}
    env.filters["spans"] = spans
    facts = json.loads((facts_folder / "series.json").read_text())
    env.globals.update(
        ui=page.ui, text=page.text, box=page.box, picture=page.picture, code=page.code, w=page.words.__getitem__,
        version=version, series=facts, limits_table=limits_table,
        names=lambda some: page.words["comma"].join(one["name"] for one in some),
        tree=lambda one: address(facts_folder / f"{one['word']}.svg"))
    chapters = [env.get_template(str(path.relative_to(HERE))).render()
                for path in sorted((HERE / language).glob("*.md"))]
    converter = markdown.Markdown(extensions=["extra", "toc"], extension_configs={"toc": {"toc_depth": "1-2"}})
    text = "\n\n".join(chapters)
    body = converter.convert(joined_lines(text) if language == "zh" else text)
    return env.get_template("page.html").render(lang=page.words["lang"], body=body, contents=converter.toc_tokens,
                                                pages=env.get_template("series.html").render())


def palette_image(image):
    """Makes a picture of the PDF one of 256 colours, a third of the size: the program's windows have few more."""
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

    header = struct.pack(">IIBBBBB", image.extra["Width"], image.extra["Height"], 8, 2, 0, 0, 0)
    png = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", image.stream[0]) + chunk(b"IEND", b"")
    few = Image.open(io.BytesIO(png)).quantize(256, Image.Quantize.MAXCOVERAGE, dither=Image.Dither.NONE)
    colours = bytes(few.getpalette())
    image.stream = [zlib.compress(few.tobytes(), 9)]
    image.extra["ColorSpace"] = f"[/Indexed /DeviceRGB {len(colours) // 3 - 1} <{colours.hex()}>]"
    del image.extra["DecodeParms"]


def write_pdf(text, folder, output):
    """Writes a tagged PDF in which each picture stands with its alternative text. The pictures are below the folder."""
    def fetch(url):
        return weasyprint.default_url_fetcher(re.sub("^picture:", folder.as_uri() + "/", url))

    document = weasyprint.HTML(string=text, base_url=HERE.as_uri() + "/", url_fetcher=fetch).render()
    # What an element of a page became in the PDF is known only to the parts that weasyprint fills on the way.
    tags, build = [], document.build_element_structure

    def keep(structure, element=None):
        if element is None:
            tags.append(structure)
        build(structure, element)

    document.build_element_structure = keep

    def finish(_, pdf):
        for element, tag in ((element, data["element"]) for page in tags for element, data in page.items()
                             if "element" in data and not isinstance(element, weasyprint.formatting_structure.boxes.Box)):
            if element.get("class") == "shot":
                tag.update({"S": "/Figure", "Alt": pydyf.String(element.find("img").get("alt"))})
        for image in pdf.objects:
            if isinstance(image, pydyf.Stream) and image.extra.get("ColorSpace") == "/DeviceRGB":
                palette_image(image)
        pdf.catalog["PageMode"] = "/UseOutlines"

    document.write_pdf(output, finisher=finish, variant="pdf/ua-1")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("language", choices=("en", "zh"))
    parser.add_argument("--version", required=True)
    parser.add_argument("--texts", type=pathlib.Path, required=True, nargs="+", help="the tables of the program's texts")
    parser.add_argument("--pictures", type=pathlib.Path, required=True, help="what the tour has left")
    parser.add_argument("--facts", type=pathlib.Path, required=True, help="what manualfacts has left")
    parser.add_argument("output")
    args = parser.parse_args()

    complaints = []
    handler = logging.Handler(logging.WARNING)
    handler.emit = lambda record: complaints.append(record.getMessage())
    handler.addFilter(lambda record: not record.getMessage().startswith("PDF/UA support is experimental"))
    logging.getLogger("weasyprint").handlers = [handler]

    os.environ["SOURCE_DATE_EPOCH"] = "0"  # otherwise the fonts hold the time of the build
    page = Page(args.language, Texts(args.texts, args.language), args.pictures.resolve())
    text = build_html(page, args.language, args.version, args.facts.resolve())
    complaints += [f"the manual says nothing of the text {each!r}" for each in page.text.missing(load("leftout.json"))]
    complaints += [f"the manual does not show the picture {each}" for each in sorted(page.unseen)]
    write_pdf(text, args.pictures.resolve().parent, args.output)
    for complaint in complaints:
        print(f"manual ({args.language}): {complaint}", file=sys.stderr)
    if complaints:
        pathlib.Path(args.output).unlink()
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
