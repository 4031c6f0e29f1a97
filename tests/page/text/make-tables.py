#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints a digest of each charset's table and of the named references, for text-tables.txt.

The tables are Python's own: its codecs and html.entities.html5. Neither comes from the library that
the program takes its tables from. Where the Encoding Standard's index differs from a codec, the
difference stands below by name. JIS X 0208 is taken from cp932, row by row, as the standard does.
192 characters of Big5 are in no codec of Python (the supplement of 2008 and others): they were taken
from the program, so that the digest guards them against change alone.
"""
import hashlib
from html.entities import html5

SINGLE = (
    "ibm866 iso-8859-2 iso-8859-3 iso-8859-4 iso-8859-5 iso-8859-6 iso-8859-7 iso-8859-8 "
    "iso-8859-10 iso-8859-13 iso-8859-14 iso-8859-15 iso-8859-16 koi8-r koi8-u macintosh "
    "windows-874 windows-1250 windows-1251 windows-1252 windows-1253 windows-1254 windows-1255 "
    "windows-1256 windows-1257 windows-1258 x-mac-cyrillic").split()
DOUBLE = ["big5", "gbk", "euc-kr", "shift_jis", "euc-jp"]
CODECS = {
    "ibm866": "cp866", "macintosh": "mac_roman", "x-mac-cyrillic": "mac_cyrillic",
    "windows-874": "cp874", "big5": "big5hkscs", "gbk": "gb18030", "euc-kr": "cp949",
    "shift_jis": "cp932", "euc-jp": "euc_jp"}
# Bytes and the standard's characters; None for bytes that stand for none.
DIFFERENCES = {
    "koi8-u": {0xAE: 0x45E, 0xBE: 0x40E},
    "windows-1255": {0xCA: 0x5BA},
    "big5": {0xA145: 0x2027, 0xA14E: 0xFE51, 0xA1C2: 0xAF, 0xA1E3: 0xFF5E, 0xA1F2: 0x2295,
             0xA1F3: 0x2299, 0xA241: 0x2215, 0xA242: 0xFE68, 0xA244: 0xFFE5, 0xA246: 0xFFE0,
             0xA247: 0xFFE1},
    "gbk": {0x80: 0x20AC, 0xA3A0: 0x3000, 0xA6D9: 0xFE10, 0xA6DA: 0xFE12, 0xA6DB: 0xFE11,
            0xA6DC: 0xFE13, 0xA6DD: 0xFE14, 0xA6DE: 0xFE15, 0xA6DF: 0xFE16, 0xA6EC: 0xFE17,
            0xA6ED: 0xFE18, 0xA6F3: 0xFE19, 0xA8BC: 0x1E3F, 0xFE59: 0x9FB4, 0xFE61: 0x9FB5,
            0xFE66: 0x9FB6, 0xFE67: 0x9FB7, 0xFE6D: 0x9FB8, 0xFE7E: 0x9FB9, 0xFE90: 0x9FBA,
            0xFEA0: 0x9FBB},
    "shift_jis": {0xA0: None, 0xFD: None, 0xFE: None, 0xFF: None},
    "euc-jp": {0x8FA2B7: 0xFF5E},
}
BIG5_SUPPLEMENT = """
877a=3875 877b=21d53 877c=2369e 877d=26021 877e=3eec 87a1=258de 87a2=3af5 87a3=7afc 87a4=9f97
87a5=24161 87a6=2890d 87a7=231ea 87a8=20a8a 87a9=2325e 87aa=430a 87ab=8484 87ac=9f96 87ad=942f
87ae=4930 87af=8613 87b0=5896 87b1=974a 87b2=9218 87b3=79d0 87b4=7a32 87b5=6660 87b6=6a29
87b7=889d 87b8=744c 87b9=7bc5 87ba=6782 87bb=7a2c 87bc=524f 87bd=9046 87be=34e6 87bf=73c4
87c0=25db9 87c1=74c6 87c2=9fc7 87c3=57b3 87c4=492f 87c5=544c 87c6=4131 87c7=2368e 87c8=5818
87c9=7a72 87ca=27b65 87cb=8b8f 87cc=46ae 87cd=26e88 87ce=4181 87cf=25d99 87d0=7bae 87d1=224bc
87d2=9fc8 87d3=224c1 87d4=224c9 87d5=224cc 87d6=9fc9 87d7=8504 87d8=235bb 87d9=40b4 87da=9fca
87db=44e1 87dc=2adff 87dd=62c1 87de=706e 87df=9fcb 8e69=7bb8 8e6f=7c06 8e7e=7cce 8eab=7dd2
8eb4=7e1d 8ecd=8005 8ed0=8028 8f57=83c1 8f69=84a8 8f6e=840f 8fcb=89a6 8fcc=89a9 8ffe=8d77
906d=90fd 907a=92b9 90dc=975c 90f1=97ff 91bf=9f16 9244=8503 92af=5159 92b0=515b 92b1=515d
92b2=515e 92c8=936e 92d1=7479 9447=6d67 94ca=799b 95d9=9097 9644=975d 96ed=701e 96fc=5b28
9b76=7201 9b78=77d7 9b7b=7e87 9bc6=99d6 9bde=91d4 9bec=60de 9bf6=6fb6 9c42=8f36 9c53=4fbb
9c62=71df 9c68=9104 9c6b=9df0 9c77=83cf 9cbc=5c10 9cbd=79e3 9cd0=5a67 9d57=8f0b 9d5a=7b51
9dc4=62d0 9ea9=6062 9eef=75f9 9efd=6c4a 9f60=9b2e 9f66=9f17 9fcb=50ed 9fd8=5f0c a063=880f
a077=62ce a0d5=7468 a0df=7162 a0e4=7250 a3c0=2400 a3c1=2401 a3c2=2402 a3c3=2403 a3c4=2404
a3c5=2405 a3c6=2406 a3c7=2407 a3c8=2408 a3c9=2409 a3ca=240a a3cb=240b a3cc=240c a3cd=240d
a3ce=240e a3cf=240f a3d0=2410 a3d1=2411 a3d2=2412 a3d3=2413 a3d4=2414 a3d5=2415 a3d6=2416
a3d7=2417 a3d8=2418 a3d9=2419 a3da=241a a3db=241b a3dc=241c a3dd=241d a3de=241e a3df=241f
a3e0=2421 a3e1=20ac c6cf=5ef4 c6d3=65e0 c6d5=7676 c6d7=96b6 c6de=3003 c6df=4edd fa5f=5029
fa66=507d fabd=5305 fac5=5344 fad5=537f fb48=5605 fbb8=5a77 fbf3=5e75 fbf9=5ed0 fc4f=5f58
fc6c=60a4 fcb9=6490 fce2=6674 fcf1=675e fdb7=6c9c fdb8=6e1d fdbb=6e2f fdf1=716e fe52=732a
fe6f=745c feaa=74e9 fedd=7809
"""


def decoded(codec, number):
    size = max(1, (number.bit_length() + 7) // 8)
    try:
        text = number.to_bytes(size, "big").decode(codec)
    except UnicodeDecodeError:
        return None
    return ord(text) if len(text) == 1 else None


def jis(number):
    """JIS X 0208 by its place in Shift_JIS."""
    row, cell = (number >> 8) - 0xA0, (number & 0xFF) - 0xA0
    lead = (row - 1) // 2 + (0x81 if row < 63 else 0xC1)
    trail = cell - 1 + (0x40 if row % 2 else 0x9F)
    if row % 2 and trail >= 0x7F:
        trail += 1
    return decoded("cp932", lead << 8 | trail)


def table(charset):
    codec = CODECS.get(charset, charset.replace("windows-", "cp"))
    numbers = list(range(0x80, 0x100))
    if charset in DOUBLE:
        numbers += [a << 8 | b for a in range(0x81, 0xFF) for b in range(0x40, 0xFF)]
    if charset == "euc-jp":
        numbers += [0x8F0000 | a << 8 | b for a in range(0xA1, 0xFF) for b in range(0xA1, 0xFF)]
    characters = {}
    for number in numbers:
        character = decoded(codec, number)
        # Bytes that Windows leaves open are control characters in the standard.
        if character is None and charset.startswith("windows-") and number < 0xA0:
            character = number
        if charset == "euc-jp" and number >= 0xA1A1 and number < 0x10000 and number & 0xFF > 0xA0:
            character = jis(number)
        characters[number] = character
    characters.update(DIFFERENCES.get(charset, {}))
    if charset == "big5":
        for entry in BIG5_SUPPLEMENT.split():
            number, character = entry.split("=")
            characters[int(number, 16)] = int(character, 16)
    return {number: character for number, character in characters.items() if character is not None}


def digest(lines):
    return hashlib.sha256("".join(line + "\n" for line in lines).encode()).hexdigest()


def main():
    print("# Made by make-tables.py. SHA-256 of the lines BYTES=CHARACTER (hexadecimal), by bytes.")
    for charset in SINGLE + DOUBLE:
        print(charset, digest(f"{n:x}={c:x}" for n, c in sorted(table(charset).items())))
    names = (name + "=" + "+".join(f"{ord(sign):x}" for sign in text)
             for name, text in sorted(html5.items()))
    print("named-references", digest(names))


main()
