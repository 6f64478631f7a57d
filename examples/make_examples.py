#!/usr/bin/env python3
"""Makes the example problems beside this script from the tables in data/.

Each table has one row per grid point. A problem is a pair of text files, byte for byte as Tavimor saves it: the
specification file and, with ".dat" behind its name, the values. Run it again after changing a table or the list below.
"""

import csv
import itertools
import pathlib
from collections import namedtuple

HERE = pathlib.Path(__file__).resolve().parent

Variable = namedtuple("Variable", "column name degree centre")
Problem = namedtuple("Problem", "path table function variables")

PROBLEMS = [
    Problem("ozone", "nist_norris", "y", [Variable("x", "reading", 1, 0)]),
    Problem("load-cell", "nist_pontius", "y", [Variable("x", "load", 2, 0)]),
    Problem("heat-index", "heat_index", "HI", [Variable("T", "T", 2, 0), Variable("R", "R", 2, 0)]),
    Problem("silicon-index", "si_index", "n", [Variable("lambda", "lambda", 9, "*"), Variable("T", "T", 3, "*")]),
    Problem("sound-speed", "mackenzie", "c",
            [Variable("T", "T", 3, 0), Variable("S", "S", 1, 35), Variable("D", "D", 3, 0)]),
    Problem("offset-print", "fogra39_cmyk", "XYZ_Y", [Variable(ink, ink, 2, "*") for ink in "CMYK"]),
    Problem("nist/filip", "nist_filip", "y", [Variable("x", "x", 10, "*")]),
    *(Problem(f"nist/wampler{n}", f"nist_wampler{n}", "y", [Variable("x", "x", 5, 0)]) for n in range(1, 6)),
]


def written_number(value):
    text = f"{value:.15G}"
    if text in ("0", "-0"):
        return "0"
    return text.replace("0.", ".", 1) if text.startswith(("0.", "-0.")) else text


def print_line(value):
    text = written_number(value)
    return (text if text.startswith("-") else " " + text) + " "


def truth(value):
    return "#TRUE#" if value else "#FALSE#"


def is_equally_spaced(values):
    step = (values[-1] - values[0]) / (len(values) - 1)
    return all(value == values[0] + i * step for i, value in enumerate(values))


def read_grid(problem):
    """The values of each variable and the function values, the last variable's index running fastest."""
    with open(HERE / "data" / (problem.table + ".csv"), newline="") as file:
        rows = list(csv.DictReader(file))
    if len(problem.variables) == 1:  # points may repeat and need no order
        column = problem.variables[0].column
        return [[float(row[column]) for row in rows]], [float(row[problem.function]) for row in rows]
    points = {tuple(float(row[v.column]) for v in problem.variables): float(row[problem.function]) for row in rows}
    axes = [sorted({point[k] for point in points}) for k in range(len(problem.variables))]
    return axes, [points[point] for point in itertools.product(*axes)]


def specification_lines(problem, axes):
    yield print_line(len(axes) - 1)
    for variable, values in zip(problem.variables, axes):
        lower, upper = min(values), max(values)
        centre = (upper + lower) / 2 if variable.centre == "*" else variable.centre
        limits = ",".join(map(written_number, (lower, upper, centre)))
        yield f'"{variable.name}",{limits},{truth(True)},0,{variable.degree}'
    yield truth(False)  # no fit yet


def values_lines(axes, function):
    yield print_line(len(axes) - 1)
    for values in axes:
        yield print_line(len(values) - 1)
        yield truth(is_equally_spaced(values))
    for values in axes:
        yield from map(print_line, values)
    yield from map(print_line, function)


def save(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode())


def main():
    for problem in PROBLEMS:
        axes, function = read_grid(problem)
        path = HERE / problem.path
        path.parent.mkdir(exist_ok=True)
        save(path, specification_lines(problem, axes))
        save(path.with_name(path.name + ".dat"), values_lines(axes, function))


if __name__ == "__main__":
    main()
