#!/usr/bin/env python3
"""Writes mac_roman.txt: each byte of Mac OS Roman but 0, and its UTF-8 text, as Python's codec has them.

Usage: make_mac_roman.py [folder]           writes the file (default: beside this script)
       make_mac_roman.py --check [folder]   writes nothing; exits 1 if the file differs from what is computed here
"""
import sys

from vector_files import write_or_check


def utf8(byte):
    return bytes([byte]).decode("mac_roman").encode("utf-8")


def lines():
    return [f"{byte:02x} {utf8(byte).hex()}" for byte in range(1, 256)]


def examine():
    assert utf8(0xDB) == "\N{EURO SIGN}".encode("utf-8")
    assert utf8(0xBD) == "\N{GREEK CAPITAL LETTER OMEGA}".encode("utf-8")


def main():
    return write_or_check("Write or check the file of Mac OS Roman.", {"mac_roman.txt": lines}, examine)


if __name__ == "__main__":
    sys.exit(main())
