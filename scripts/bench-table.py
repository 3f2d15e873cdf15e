#!/usr/bin/env python3
"""Runs every benchmark program and ends with one table: each figure, its baseline from the same
run, the ratio and the aim, marked when missed.

Usage: bench-table.py BENCH_DIR [--quick]

Times are the medians of the repetitions, in CPU time: the machines we build on are shared, and
CPU time is what a busy neighbour disturbs least. --quick runs one repetition of each.
"""

import json
import math
import os
import subprocess
import sys
import tempfile

REPETITIONS = 3

# Every bench_* program in the folder runs; these are not repeated, as their fit is the figure.
NOT_REPEATED = {"bench_scale"}

# (figure, benchmark, baseline or None, aim as the highest ratio (or ms when there is no
# baseline), or None for a figure shown without one)
RATIOS = [
    ("Grid repaint, 1920 x 1080 of short texts", "BM_GridRepaint", "BM_RawCairoRepaint", 0.6),
    ("Grid first paint of texts not seen before", "BM_GridFirstPaint", "BM_RawCairoRepaint", 1.2),
    ("Page scroll + repaint, 1,000,000-row virtual grid", "BM_VirtualPageScroll",
     "BM_VirtualRepaint", 1.1),
    ("Line scroll + repaint, 1,000,000-row virtual grid", "BM_VirtualLineScroll",
     "BM_VirtualRepaint", None),
    ("Chart end to end, 1,000,000 points to a PNG file (ms)", "ChartToPngFile", None, 20.0),
    ("Chart render, 1,000,000-point line", "RenderLineChart", "ColumnMinMaxPass", 2.0),
    ("PNG encoding of the chart", "EncodePng", "CairoPngWriter", 1 / 3),
    ("Push of 1,000,000 points", "PushThroughPlotData", "CopyIntoVectors", 1.5),
    ("xgFormatDouble", "XgFormatDouble", "SnprintfG", 1.0),
    ("Text reader, 50 MB of numbers", "DataReader", "FgetsStrtod", 1.0),
    ("DrawText of a short cell text", "BM_DrawText_CDC", "BM_DrawText_RawPango", 1.5),
    ("FillSolidRect of one cell", "BM_FillSolidRect_CDC", "BM_FillSolidRect_RawCairo", None),
    ("Grid store: 100000 x 20 by SetRowCount", "GridSetRowCount", "BaselineBareObjects", 2.0),
    ("Spreadsheet: 10,000 x 12 of every column kind", "SpreadsheetBuild", "PlainGridBuild", None),
]

# (figure, benchmark, counter, baseline benchmark or None, aim)
COUNTERS = [
    ("PNG file size against Cairo's", "EncodePng", "bytes", "CairoPngWriter", 1.5),
    ("Grid store: bytes per empty text cell", "GridSetRowCount", "bytes_per_cell", None, 128),
    ("Spreadsheet: bytes per typed cell", "SpreadsheetBuild", "bytes_per_cell", "PlainGridBuild",
     1.5),
]

# (figure, benchmark family, expected complexity)
COMPLEXITIES = [
    ("Virtual repaint by rows, 1,000 to 100,000,000", "VirtualRepaintByRows", "(1)"),
    ("SetRowCount by rows, 1,000 to 100,000", "SetRowCountByRows", "N"),
    ("Sort of a text column by rows, 1,024 to 65,536", "SortTextByRows", "NlgN"),
    ("Chart render by points, 10,000 to 10,000,000", "RenderLineByPoints", "N"),
]
COMPLEXITY_RMS_AIM = 0.25

UNIT_TO_MS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def run(bench_dir, program, repeated, quick):
    path = os.path.join(bench_dir, program)
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        command = [path, "--benchmark_counters_tabular=true",
                   f"--benchmark_out={out.name}", "--benchmark_out_format=json"]
        if repeated and not quick:
            command += [f"--benchmark_repetitions={REPETITIONS}",
                        "--benchmark_report_aggregates_only=true"]
        print("$ " + " ".join(command[:1] + command[4:]), flush=True)
        subprocess.run(command, check=False)
        try:
            with open(out.name) as results:
                return json.load(results).get("benchmarks", [])
        except (OSError, ValueError):
            return []


def base_name(entry):
    return entry.get("run_name", entry.get("name", "")).split("/")[0]


def medians(entries):
    """Benchmark name -> its median entry (or its only one)."""
    chosen = {}
    for entry in entries:
        name = base_name(entry)
        aggregate = entry.get("aggregate_name")
        if aggregate == "median" or (aggregate is None and name not in chosen):
            chosen[name] = entry
    return chosen


def cpu_ms(entry):
    return entry["cpu_time"] * UNIT_TO_MS.get(entry.get("time_unit", "ns"), 1e-6)


def show_ms(value):
    return f"{value:.3g} ms" if value >= 0.01 else f"{value * 1e3:.3g} us"


def mark(ratio, aim):
    if aim is None or ratio is None or math.isnan(ratio):
        return ""
    return "" if ratio <= aim else "  ** MISSED **"


def table(entries):
    found = medians(entries)
    rows = []
    for figure, name, baseline, aim in RATIOS:
        ours = found.get(name)
        if ours is None:
            rows.append((figure, "not run", "", "", "", ""))
            continue
        if baseline is None:
            value = cpu_ms(ours)
            rows.append((figure, show_ms(value), "-", "-", f"<= {aim:g} ms" if aim else "-",
                         mark(value, aim)))
            continue
        base = found.get(baseline)
        if base is None:
            rows.append((figure, show_ms(cpu_ms(ours)), "not run", "", "", ""))
            continue
        ratio = cpu_ms(ours) / cpu_ms(base)
        rows.append((figure, show_ms(cpu_ms(ours)), f"{show_ms(cpu_ms(base))} ({baseline})",
                     f"{ratio:.2f}", f"<= {aim:.2f}" if aim else "-", mark(ratio, aim)))
    for figure, name, counter, baseline, aim in COUNTERS:
        ours = found.get(name, {}).get(counter)
        if ours is None:
            rows.append((figure, "not run", "", "", "", ""))
            continue
        if baseline is None:
            rows.append((figure, f"{ours:.0f}", "-", "-", f"<= {aim:g}", mark(ours, aim)))
            continue
        base = found.get(baseline, {}).get(counter)
        ratio = ours / base if base else float("nan")
        rows.append((figure, f"{ours:.0f}", f"{base:.0f} ({baseline})", f"{ratio:.2f}",
                     f"<= {aim:.2f}", mark(ratio, aim)))
    for figure, family, expected in COMPLEXITIES:
        fit = next((e for e in entries if e.get("name") == f"{family}_BigO"), None)
        rms = next((e for e in entries if e.get("name") == f"{family}_RMS"), None)
        if fit is None or rms is None:
            rows.append((figure, "not run", "", "", "", ""))
            continue
        sizes = [cpu_ms(e) for e in entries
                 if e.get("name", "").startswith(family + "/") and "aggregate_name" not in e]
        spread = f"{show_ms(min(sizes))} .. {show_ms(max(sizes))}" if sizes else ""
        error = rms["rms"]
        rows.append((figure, f"O{fit.get('big_o', '?')}, RMS {error:.0%}", spread, "-",
                     f"O{expected}, RMS <= {COMPLEXITY_RMS_AIM:.0%}",
                     mark(error, COMPLEXITY_RMS_AIM)))
    headers = ("figure", "ours", "baseline", "ratio", "aim", "")
    widths = [max(len(str(row[i])) for row in rows + [headers]) for i in range(5)]
    lines = ["| " + " | ".join(str(h).ljust(w) for h, w in zip(headers, widths)) + " |",
             "|" + "|".join("-" * (w + 2) for w in widths) + "|"]
    for row in rows:
        lines.append("| " + " | ".join(str(c).ljust(w) for c, w in zip(row, widths)) + " |" +
                     row[5])
    return "\n".join(lines)


def main():
    args = [a for a in sys.argv[1:] if not a.startswith("--")]
    quick = "--quick" in sys.argv
    if len(args) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    programs = sorted(name for name in os.listdir(args[0])
                      if name.startswith("bench_") and os.access(os.path.join(args[0], name), os.X_OK))
    entries = []
    for program in programs:
        entries += run(args[0], program, program not in NOT_REPEATED, quick)
    print("\nMedians of CPU time" + (" (one repetition)" if quick else
                                     f" over {REPETITIONS} repetitions") + ":\n")
    print(table(entries))
    return 0


if __name__ == "__main__":
    sys.exit(main())
