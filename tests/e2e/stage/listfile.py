# SPDX-License-Identifier: GPL-3.0-or-later
"""Word lists read and written independently of the program."""
import struct


def entries(file):
    """The entries of a list file."""
    data = file.read_bytes()
    at = 0

    def number(form):
        nonlocal at
        (value,) = struct.unpack_from(form, data, at)
        at += 2
        return value

    def text():
        nonlocal at
        length = number("<H")
        at += length
        return data[at - length:at].decode("cp1252")

    return [(text(), text(), text()) for _ in range(number("<h"))]


def writes(file, listed):
    """Makes a list file of the entries."""
    texts = [text.encode("cp1252") for entry in listed for text in entry]
    file.write_bytes(struct.pack("<h", len(listed))
                     + b"".join(struct.pack("<H", len(text)) + text for text in texts))


def written(file):
    """The entries of the readable text that a sample list is made of."""
    lines = [line for line in file.read_text("utf-8").splitlines() if not line.startswith("#")]
    blocks = "\n".join(lines).strip("\n").split("\n\n")
    return [tuple(block.strip("\n").split("\n")) for block in blocks if block.strip()]
