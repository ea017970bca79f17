"""The text form of a log."""

import collections

Block = collections.namedtuple("Block", "constants columns rows")


def clock(seconds):
    """The clock time so many seconds after midnight, over further midnights if need be."""
    minutes = seconds // 60
    return "{:02}:{:02}:{:02}".format(minutes // 60 % 24, minutes % 60, seconds % 60)


def seconds(hours, minutes):
    return (hours * 60 + minutes) * 60


def lines(block, separator):
    """The lines of a block. The first unit is empty, so the unit row starts with a separator."""
    rows = [["[Header]"]] + block.constants + [["[Data]"]]
    rows += [[getattr(c, part) for c in block.columns] for part in ("group", "name", "unit")]
    rows += block.rows
    return [separator.join(checked(row, separator)) for row in rows]


def checked(row, separator):
    """Cells aren't quoted, so none may hold the separator; a reader trims what ends empty."""
    assert not any(separator in cell for cell in row), row
    assert row == [""] or row[-1] != "", row
    return row


def write(path, blocks, separator):
    path.parent.mkdir(parents=True, exist_ok=True)
    text = "".join(line + "\n" for block in blocks for line in lines(block, separator))
    path.write_bytes(text.encode("utf-8"))
