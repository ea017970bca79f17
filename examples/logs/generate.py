#!/usr/bin/env python3
"""Writes the sample logs.

    generate.py [--out DIR]     DIR is this script's own folder unless told

Every run writes the same bytes on every machine: the numbers come from a generator of this file's
own, and the arithmetic keeps to operations that are rounded alike everywhere.
"""

import argparse
import pathlib
import sys

sys.dont_write_bytecode = True  # the folder of the samples stays as it is

from generator import broken, chamber
from generator.logtext import Block, clock, seconds, write


def constants(created, run):
    """Header lines of one run: several keys come more than once, some lines are no constants."""
    return [
        ["Created", created],
        ["Sys:Serial", "CC-1042"],
        ["Sys:Firmware", "3.1.7"],
        ["Sys:Run", run],
        ["Cal:CO2", "1.0023", "µmol/mol"],
        ["Cal:H2O", "0.9981", "mmol/mol"],
        ["Cal:Date", "2016-02-29"],
        ["Cal:Date", "2016-03-07"],
        ["Probe:", "Pt100 air", "K1"],
        ["Probe:", "Pt100 soil", "K2"],
        ["Probe:", "Pt100 case", "K3"],
        ["Operator", "night shift"],
        ["Const:Volume", "1.35", "m³"],
        ["Const:LeafArea", "0.2140", "m²"],
        ["Const:LeafArea", "0.2155", "m²"],
        ["Layout of the trays as on the sheet beside the door"],
    ]


def sample(columns, program, seed, rows, start, period, doors=(), glitches=()):
    """The observation rows of one run, each a list of cells for the columns."""
    cabin = chamber.Chamber(seed, period, program.at(0))
    result = []
    for number in range(rows):
        values = cabin.advance(program.at(number * period), number in doors, number in glitches)
        cells = [str(number + 1), clock(start + number * period)]
        cells += ["{:.{}f}".format(values[c.name], c.decimals) for c in columns[2:]]
        result.append(cells)
    return result


def blank(rows, columns, name, numbers):
    """Takes the values of one variable out of some rows, leaving empty cells."""
    column = [c.name for c in columns].index(name)
    for number in numbers:
        rows[number][column] = ""


def cut(rows, columns, numbers):
    """Ends some rows before the last group, as when the power meter doesn't answer."""
    groups = [c.group for c in columns]
    for number in numbers:
        del rows[number][groups.index(groups[-1]):]


def whole_day():
    """Block 1: 5,000 rows from one afternoon over midnight to the next evening."""
    columns = chamber.COLUMNS
    remarks = [
        ['"Run 17: response to light and CO2 and temperature; then a frost test"'],
        ["Trays 1 to 6 planted", "40 d"],
        ["Lamps warm; gas bottle changed", "tray 3 left out"],
    ]
    rows = sample(columns, chamber.day_program(), 17, 5000 - len(remarks), seconds(16, 40), 20,
                  doors=range(690, 694), glitches=(1515, 2360, 3310))
    blank(rows, columns, "O2", [n for n in range(len(rows)) if n % 720 in (700, 701, 702)])
    blank(rows, columns, "Tdew", range(2100, 2130))
    cut(rows, columns, (1250, 1251, 4400))
    return Block(constants("2016-03-14 16:38:02", "17"), columns, remarks + rows)


def warm_up():
    """Block 2: fewer columns, clock times in quotes, remarks among the observations."""
    columns = [c for c in chamber.COLUMNS if c.name in (
        "Obs", "Time", "Tset", "Tair", "RHset", "RH", "VPD", "CO2set", "CO2", "H2O", "PARset", "PAR")]
    rows = sample(columns, chamber.ramp_program(), 18, 400, seconds(21, 10), 60,
                  doors=(120, 121, 250), glitches=(333,))
    for row in rows:
        row[1] = '"' + row[1] + '"'
    blank(rows, columns, "H2O", range(60, 64))
    rows.insert(320, ["Fan noisy"])
    rows.insert(250, ["Door opened", "tray 2 out"])
    rows.insert(120, ['"Door opened and watered"'])
    return Block(constants("2016-03-15 21:06:40", "18"), columns, rows + [[""]])


def soil_run():
    """Block 3: another group, with four soil probes."""
    columns = chamber.COLUMNS[:25] + chamber.SOIL_COLUMNS + chamber.COLUMNS[25:]
    rows = sample(columns, chamber.soil_program(), 19, 300, seconds(8, 5), 120,
                  doors=(90,), glitches=(200,))
    blank(rows, columns, "Soil3", range(140, 160))
    cut(rows, columns, (210,))
    rows.insert(90, ["Watered", "2.5 L"])
    lines = constants("2016-03-16 08:01:15", "19") + [["Probe:", "Soil water 1 to 4", "K7"]]
    return Block(lines, columns, rows)


def one_block():
    """A log without any trouble in it: one block, each row complete."""
    columns = [c for c in chamber.COLUMNS if c.name in (
        "Obs", "Time", "Tset", "Tair", "RHset", "RH", "CO2set", "CO2", "PARset", "PAR", "Heater",
        "Cooler")]
    rows = sample(columns, chamber.ramp_program(), 20, 500, seconds(9, 0), 60)
    return Block(constants("2016-03-21 08:58:30", "20"), columns, rows)


def main():
    here = pathlib.Path(__file__).resolve().parent
    arguments = argparse.ArgumentParser(description="Writes the sample logs.")
    arguments.add_argument("--out", type=pathlib.Path, default=here, metavar="DIR")
    out = arguments.parse_args().out

    blocks = [whole_day(), warm_up(), soil_run()]
    write(out / "climate-chamber.log", blocks, "\t")
    write(out / "climate-chamber.csv", blocks, ",")
    write(out / "one-block.log", [one_block()], "\t")
    broken.write_all(out / "broken")


if __name__ == "__main__":
    main()
