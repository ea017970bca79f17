"""Logs that are wrong in one way each."""

PREAMBLE = [
    "[Header]",
    "Created\t2016-03-14 16:38:02",
    "Sys:Serial\tCC-1042",
    "[Data]",
    "System\tSystem\tClimate\tClimate\tGas",
    "Obs\tTime\tTair\tRH\tCO2",
    "\thh:mm:ss\t°C\t%\tµmol/mol",
]
ROWS = [
    "1\t10:00:00\t20.11\t60.2\t401.5",
    "2\t10:00:30\t20.34\t59.8\t402.1",
    "3\t10:01:00\t20.52\t59.1\t400.8",
]
WHOLE = PREAMBLE + ROWS


def text(lines, end="\n"):
    return "".join(line + end for line in lines).encode("utf-8")


def cut_short():
    """One file that ends after each line of the preamble."""
    last_lines = ("header-mark", "created-date", "constant", "data-mark", "group-row",
                  "variable-row", "unit-row")
    return {"ends-after-{}.log".format(name): text(PREAMBLE[:number + 1])
            for number, name in enumerate(last_lines)}


def wrong_bytes():
    whole = text(WHOLE)
    return {
        "byte-order-mark.log": b"\xef\xbb\xbf" + whole,
        # A degree sign in Latin-1, a lone continuation byte, a slash in two bytes, and half a
        # character.
        "invalid-utf8.log": whole.replace("°C".encode("utf-8"), b"\xb0C")
        .replace(b"CC-1042", b"CC\x80-1042").replace(b"20.34", b"20\xc0\xaf34")
        .replace(b"400.8", b"400.8\xe2\x82"),
        "nul-bytes.log": whole.replace(b"CC-1042", b"CC\0-1042").replace(b"20.34", b"20.\x0034")
        .replace(b"\t402.1", b"\t\0"),
    }


def uneven_rows():
    rows = [
        ROWS[0],
        "2\t10:00:30\t20.34",
        "3\t10:01:00\t20.52\t59.1\t400.8\t7.5\t8.5",
        "A note",
        "A note\tand more",
        "",
        "4\t10:01:30\t20.61\t58.9\t400.2",
    ]
    return text(PREAMBLE + rows)


def many_columns(count=10000):
    names = ["Obs", "Time"] + ["v{}".format(n) for n in range(2, count)]
    rows = [["A"] * count, names, [""] + ["u"] * (count - 1)]
    for number in (1, 2, 3):
        values = [str((n * number) % 97) for n in range(2, count)]
        rows.append([str(number), "10:00:0{}".format(number)] + values)
    return text(PREAMBLE[:4] + ["\t".join(row) for row in rows])


def write_all(folder):
    folder.mkdir(parents=True, exist_ok=True)
    files = {
        "empty.log": b"",
        "no-header-mark.log": text(WHOLE[1:]),
        "text-after-header-mark.log": text(["[Header] v3"] + WHOLE[1:]),
        "crlf-line-ends.log": text(WHOLE, "\r\n"),
        "cr-only-line-ends.log": text(WHOLE, "\r"),
        "long-and-short-rows.log": uneven_rows(),
        "ten-thousand-columns.log": many_columns(),
    }
    files.update(cut_short())
    files.update(wrong_bytes())
    for name, content in files.items():
        (folder / name).write_bytes(content)
