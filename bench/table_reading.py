#!/usr/bin/env python3
"""Reading a table of a million rows beside reading pairs of files: medians of ratios of neighbours in time.

Usage: table_reading.py FOLDER_OF_PROGRAMS [RUNS]

A command that saves what it has read takes the time of reading and of saving; of the same problem, "copy" less "show"
is the saving. What counts is the processor's time, user and system, since the machine may have other work.
"""
import pathlib
import random
import resource
import statistics
import subprocess
import sys
import tempfile

ROWS_OF_ONE_VALUE = 1000  # of a thousand values: a million rows


def rows():
    random.seed(20261121)
    for i in range(ROWS_OF_ONE_VALUE):
        for j in range(ROWS_OF_ONE_VALUE):
            x, y = round(0.5 + 0.123456789 * i, 9), round(-100 + 3.14159265 * j, 8)
            yield repr(x), repr(y), f"{random.uniform(-1e3, 1e3):.15g}"


def write_files(folder):
    """The table, and a pair of one variable that holds the same three million numbers."""
    numbers = []
    with open(folder / "table.csv", "w") as table:
        table.write("x,y,f\n")
        for row in rows():
            table.write(",".join(row) + "\n")
            numbers += row
    (folder / "numbers").write_text('0\n"x",0,1,0,#TRUE#,0,1\n#FALSE#\n')
    lines = [" 0 ", f" {len(numbers) // 2 - 1} ", "#FALSE#"]
    lines += [(number if number.startswith("-") else " " + number) + " " for number in numbers]
    (folder / "numbers.dat").write_text("\r\n".join(lines) + "\r\n")


def processor_time(command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def main():
    cli = pathlib.Path(sys.argv[1]).resolve() / "tavimor-cli"
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    ratios = {"the same numbers in a pair": [], "the pair of that problem": []}
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        write_files(folder)
        path = {key: str(folder / key) for key in ("table.csv", "problem", "numbers", "copy")}
        for _ in range(runs):
            imported = processor_time([cli, "import", path["table.csv"], path["problem"]])
            read_problem = processor_time([cli, "show", path["problem"]])
            saving = processor_time([cli, "copy", path["problem"], path["copy"]]) - read_problem
            read_numbers = processor_time([cli, "show", path["numbers"]])
            ratios["the same numbers in a pair"].append((imported - saving) / read_numbers)
            ratios["the pair of that problem"].append((imported - saving) / read_problem)
        size = (folder / "table.csv").stat().st_size / 1e6
    for what, found in ratios.items():
        print(f"reading a table of {ROWS_OF_ONE_VALUE**2} rows, {size:.0f} MB / reading {what}: "
              f"{statistics.median(found):.1f}")


if __name__ == "__main__":
    main()
