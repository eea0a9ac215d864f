#!/usr/bin/env python3
"""Drafts every sample case as .rtf and holds what LibreOffice makes of it against the report's own text:
the text character by character, the bold stretches letter by letter, the centred title, the right-aligned values.

usage: check_rtf.py FOLDER_OF_PROGRAMS MUESTRAS.sql
"""
import json
import pathlib
import sqlite3
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

NS = {
    "office": "urn:oasis:names:tc:opendocument:xmlns:office:1.0",
    "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
    "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
    "fo": "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0",
}


def tag(name):
    prefix, local = name.split(":")
    return "{%s}%s" % (NS[prefix], local)


class Styles:
    """What a style of the document says, its parents' word included."""

    def __init__(self, root):
        self.by_name = {}
        for style in root.iter(tag("style:style")):
            self.by_name[(style.get(tag("style:family")), style.get(tag("style:name")))] = style

    def value(self, family, name, element, attribute):
        while name is not None and (family, name) in self.by_name:
            style = self.by_name[(family, name)]
            found = style.find(element, NS)
            if found is not None and found.get(tag(attribute)) is not None:
                return found.get(tag(attribute))
            name = style.get(tag("style:parent-style-name"))
        return None

    def bold(self, family, name):
        weight = self.value(family, name, "style:text-properties", "fo:font-weight")
        return None if weight is None else weight == "bold"

    def alignment(self, name):
        return self.value("paragraph", name, "style:paragraph-properties", "fo:text-align")


def read_paragraph(element, bold, styles):
    """The letters of an element, each with its boldness."""
    letters = [(c, bold) for c in element.text or ""]
    for child in element:
        if child.tag == tag("text:s"):
            letters += [(" ", bold)] * int(child.get(tag("text:c"), "1"))
        elif child.tag == tag("text:tab"):
            letters.append(("\t", bold))
        elif child.tag == tag("text:line-break"):
            letters.append(("\n", bold))
        elif child.tag in (tag("text:span"), tag("text:a")):
            own = styles.bold("text", child.get(tag("text:style-name")))
            letters += read_paragraph(child, bold if own is None else own, styles)
        letters += [(c, bold) for c in child.tail or ""]
    return letters


def read_document(path):
    """(text, bold letter by letter, alignment of each paragraph) of a flat text document."""
    root = ET.parse(path).getroot()
    styles = Styles(root)
    letters, alignments = [], []
    for number, element in enumerate(root.find("office:body/office:text", NS).iter(tag("text:p"))):
        name = element.get(tag("text:style-name"))
        if number:
            letters.append(("\n", False))
        line = read_paragraph(element, bool(styles.bold("paragraph", name)), styles)
        letters += line
        alignments.append(("".join(c for c, _ in line), styles.alignment(name)))
    return "".join(c for c, _ in letters), [b for _, b in letters], alignments


def expected_bold(text, headings):
    """Each heading is bold where it is found first, whatever the case of its letters."""
    bold = [False] * len(text)
    folded = text.lower()
    assert len(folded) == len(text)
    for heading in headings:
        at = folded.find(heading.lower()) if heading else -1
        if at >= 0:
            bold[at:at + len(heading)] = [True] * len(heading)
    return bold


def first_difference(wanted, found):
    for at, (w, f) in enumerate(zip(wanted, found)):
        if w != f:
            return at
    return min(len(wanted), len(found))


def check(name, text, headings, document):
    problems = []
    wanted = text.replace("\r\n", "\n").rstrip("\n")
    found, bold, alignments = read_document(document)
    found_text = found.rstrip("\n")
    if wanted != found_text:
        at = first_difference(wanted, found_text)
        problems.append("the text differs: %r in place of %r" % (found_text[at:at + 60], wanted[at:at + 60]))
    else:
        mask = expected_bold(wanted, headings)
        wrong = [i for i, c in enumerate(wanted) if not c.isspace() and mask[i] != bold[i]]
        if wrong:
            problems.append("%d letters have the wrong weight, first at %r" % (len(wrong), wanted[wrong[0]:][:60]))
        if not any(mask):
            problems.append("no heading is bold")
    centred = [line for line, alignment in alignments if alignment == "center"]
    if centred != ["INFORME DE TASACION"]:
        problems.append("centred is %r" % centred)
    right = [line.strip() for line, alignment in alignments if alignment in ("end", "right")]
    for start in ("Valor del inmueble (Vt)  =", "IMPORTE TOTAL DE TASACION:"):
        if sum(line.startswith(start) for line in right) != 1:
            problems.append("not right-aligned: %s" % start)
    print("%-34s %s" % (name, "; ".join(problems) or "ok"))
    return not problems


def main():
    programs, sql = pathlib.Path(sys.argv[1]), sys.argv[2]
    with tempfile.TemporaryDirectory() as folder:
        base = folder + "/muestras.mdb"
        subprocess.run([programs / "valmerix-muestras", base, sql], check=True)
        connection = sqlite3.connect(base)
        cases = connection.execute("SELECT Tipo, NombreTasador, NumeroTasacion FROM Viviendas ORDER BY 3").fetchall()
        reports = []
        for kind, valuer, number in cases:
            command = [programs / "valmerix-informe", base, kind, valuer, str(number)]
            rtf = "%s/%s%d.rtf" % (folder, kind, number)
            text = subprocess.run(command + ["--rtf", rtf], check=True, capture_output=True).stdout.decode()
            state = json.loads(subprocess.run(command + ["--estado"], check=True, capture_output=True).stdout)
            reports.append(("%s %d %s" % (kind, number, valuer), text, state["negritas"], rtf))
        subprocess.run(["soffice", "-env:UserInstallation=file://%s/profile" % folder, "--headless", "--convert-to",
                        "fodt", "--outdir", folder] + [rtf for _, _, _, rtf in reports],
                       check=True, stdout=subprocess.DEVNULL, timeout=240)
        good = [check(name, text, headings, rtf[:-4] + ".fodt") for name, text, headings, rtf in reports]
        return 0 if len(good) == 14 and all(good) else 1


sys.exit(main())
