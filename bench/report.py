#!/usr/bin/env python3
"""Runs all benchmarks of a build and prints each figure beside its limit, with a mark where the limit is missed.

Exit status: 0 all limits are kept, 1 one is missed, 2 a benchmark failed, has no limit, or is missing for one.
"""
import argparse
import csv
import json
import math
import pathlib
import re
import statistics
import subprocess
import sys

BENCH = pathlib.Path(__file__).resolve().parent
PER_UNIT = {"µs": 1e6, "ms": 1e3, "s": 1.0, "times": 1.0, "kB": 1e-3}  # from seconds, a ratio or bytes


def run(*command, log=None):
    """The command's output."""
    command = [str(part) for part in command]
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=log, check=True, text=True).stdout


def google_benchmarks(program):
    """The machine; by benchmark, the medians over its repetitions of its statistics; and what failed."""
    output = json.loads(run(program, "--benchmark_format=json", log=subprocess.DEVNULL))
    repetitions = {}
    errors = []
    for row in output["benchmarks"]:
        name = re.sub(r"(/iterations:\d+)?(/repeats:\d+)?/manual_time$", "", row["run_name"])
        rows = repetitions.setdefault(name, [])
        if row.get("error_occurred"):
            errors.append(f"{name}: {row['error_message']}")
        elif row["run_type"] == "iteration":
            rows.append({key: value for key, value in row.items() if isinstance(value, float)})
    figures = {
        name: {key: statistics.median(row[key] for row in rows) for key in (rows[0] if rows else {})}
        for name, rows in repetitions.items()
    }
    machine = {key: output["context"][key] for key in ("date", "num_cpus", "mhz_per_cpu")}
    return machine, figures, errors


def whole_programs(*command, log=None):
    """What a command prints that times whole programs: benchmark, statistic and figure."""
    figures = {}
    for line in run(*command, log=log).splitlines():
        name, statistic, figure = line.split("\t")
        figures.setdefault(name, {})[statistic] = float(figure)
    return figures


def joined(limits, figures):
    """The limits with their figures, and what does not fit together."""
    rows = []
    named = {limit["benchmark"] for limit in limits}
    errors = [f"benchmark without a limit: {name}" for name in figures if name not in named]
    for limit in limits:
        figure = figures.get(limit["benchmark"], {}).get(limit["statistic"])
        if figure is None:
            errors.append(f"limit without a figure: {limit['benchmark']} {limit['statistic']}")
            continue
        row = dict(limit, limit=float(limit["limit"]), figure=figure * PER_UNIT[limit["unit"]])
        row["missed"] = not row["figure"] <= row["limit"]
        rows.append(row)
    return rows, errors


def number(value):
    """Three significant digits."""
    digits = 2 - math.floor(math.log10(value)) if value > 0 else 0
    return f"{value:.{max(0, digits)}f}"


def print_table(rows):
    width = max((len(row["what"]) for row in rows), default=0)
    print(f"{'what':{width}}  {'limit':>11}  {'figure':>11}")
    for row in rows:
        limit = f"{row['limit']:g} {row['unit']:5}"
        figure = f"{number(row['figure'])} {row['unit']:5}"
        print(f"{row['what']:{width}}  {limit:>11}  {figure:>11}  {'MISSED' if row['missed'] else ''}".rstrip())


def write_json(file, machine, rows):
    text = json.dumps({"machine": machine, "figures": rows}, ensure_ascii=False, indent=2)
    file.write_text(text + "\n", encoding="utf-8")


def report(options):
    """The exit status."""
    with open(BENCH / "limits.tsv", encoding="utf-8", newline="") as file:
        limits = list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))
    machine, figures, failed = google_benchmarks(options.programs / "tessaly_bench")
    figures |= whole_programs(BENCH / "startup/measure.sh", options.programs)
    figures |= whole_programs(options.programs / "tessaly_preview_bench", log=subprocess.DEVNULL)
    rows, mismatches = joined(limits, figures)
    print_table(rows)
    if options.json:
        write_json(options.json, machine, rows)
    missed = sum(row["missed"] for row in rows)
    print(f"{len(rows)} limits, {missed} missed")
    for error in failed + mismatches:
        print(f"error: {error}", file=sys.stderr)
    return 2 if failed or mismatches else 1 if missed else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("programs", type=pathlib.Path, help="folder of the built benchmark programs")
    parser.add_argument("--json", type=pathlib.Path, metavar="FILE", help="write the figures to FILE, too")
    try:
        return report(parser.parse_args())
    except (OSError, subprocess.CalledProcessError) as error:
        print(f"error: {error}", file=sys.stderr)
        return 2


if __name__ == "__main__":
    sys.exit(main())
