#!/usr/bin/env python3
"""Draws docs/floors.svg: the floors of src/FLOORS from the ground up, with the lines of code on each
and how many includes lead from it to which floor below. Run it from the top of the tree after a
change of the floors."""

import collections
import pathlib
import re

SOURCE = pathlib.Path("src")
WHAT = {
    "base": "money, arrays, faults, record files, clock, folders",
    "state": "table, settings, payoffs, books, scripts as text",
    "texts": "every text, a catalogue a language",
    "log": "the events log",
    "engine": "limits, refusals, plans, settlement, handling",
    "dice": "generators, roll files, probability matrix",
    "config": "changing the rules, payoff editor, house advantage",
    "stats": "the arithmetic of every view, reports",
    "autobet": "the betting language",
    "files": "game file, sessions logs, hot keys",
    "play": "rolls, players, sessions, runs: the commands",
    "study": "many sessions and what follows from them",
    "ui": "the window",
    "app": "the two programs",
}
FLOOR_HEIGHT, WIDTH, LEFT = 34, 900, 10


def floors():
    lines = (SOURCE / "FLOORS").read_text().splitlines()
    return [line for line in lines if line and not line.startswith("#")]


def measure(names):
    """Lines of code (no blanks, no comments) and includes of other floors, for each floor."""
    lines, leads = collections.Counter(), collections.defaultdict(collections.Counter)
    for path in SOURCE.rglob("*"):
        if path.suffix not in (".h", ".cpp") or path.relative_to(SOURCE).parts[0] not in names:
            continue
        floor = path.relative_to(SOURCE).parts[0]
        text = path.read_text(encoding="utf-8")
        lines[floor] += sum(1 for line in text.splitlines() if not re.match(r"\s*(//|$)", line))
        for target in re.findall(r'^#include "(\w+)/', text, re.M):
            if target != floor:
                leads[floor][target] += 1
    return lines, leads


def draw(names, lines, leads):
    height = FLOOR_HEIGHT * len(names) + 20
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" '
             'font-family="sans-serif" font-size="12">',
             f'<rect width="{WIDTH}" height="{height}" fill="white"/>']
    for level, name in enumerate(reversed(names)):
        y = 10 + level * FLOOR_HEIGHT
        shade = 245 - 6 * (level % 2)
        below = ", ".join(f"{n} {leads[name][n]}" for n in reversed(names) if leads[name][n])
        parts.append(f'<rect x="{LEFT}" y="{y}" width="{WIDTH - 2 * LEFT}" height="{FLOOR_HEIGHT - 4}"'
                     f' fill="rgb({shade},{shade},{shade})" stroke="#888"/>')
        parts.append(f'<text x="{LEFT + 8}" y="{y + 20}" font-weight="bold">{name}/</text>')
        parts.append(f'<text x="{LEFT + 80}" y="{y + 13}">{WHAT.get(name, "")}</text>')
        parts.append(f'<text x="{LEFT + 80}" y="{y + 26}" fill="#555" font-size="10">'
                     f'{lines[name]:,} lines; includes of {below or "nothing"}</text>')
    parts.append("</svg>\n")
    return "\n".join(parts)


def main():
    names = floors()
    lines, leads = measure(names)
    pathlib.Path("docs/floors.svg").write_text(draw(names, lines, leads), encoding="utf-8")


if __name__ == "__main__":
    main()
