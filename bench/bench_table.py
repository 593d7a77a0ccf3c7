#!/usr/bin/env python3
"""Turns the benchmark results into the performance table of the README.

Reads the Google Benchmark JSON files (medians of repetitions; several joined
with ",") and the outputs of
bench/first_spread.sh and bench/make_memory.sh (on the King James ebook and
on the 30 MB book), and prints one Markdown table: figure, target, measured,
pass.
    bench_table.py BENCH_JSON[,BENCH_JSON...] FIRST_SPREAD_TXT MAKE_MEMORY_TXT BIG_BOOK_TXT
"""
import json
import re
import sys


def medians(path):
    with open(path) as f:
        data = json.load(f)
    found = {}
    for run in data["benchmarks"]:
        if run.get("aggregate_name", "median") != "median":
            continue
        name = run.get("run_name", run["name"]).removesuffix("_median")
        found[name] = run
    return found


def ms(run, clock="real_time"):
    scale = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}[run["time_unit"]]
    return run[clock] * scale


def by_argument(runs, prefix):
    """The runs of one benchmark, in the order of their first numeric argument."""
    found = [(name, run) for name, run in runs.items() if name.startswith(prefix + "/")]
    return [run for name, run in
            sorted(found, key=lambda item: int(re.search(r"/(?:\w+:)?(\d+)", item[0]).group(1)))]


def mb_per_s(run):
    return run["bytes_per_second"] / 1e6


def read_text(path):
    with open(path) as f:
        return f.read()


def start_up(path):
    """The figures of a bench/first_spread.sh output, by name."""
    text = read_text(path)

    def number(label):
        return float(re.search(label + r"[^\d]*([\d.]+)", text).group(1))

    return {"first": number("first spread on screen:"),
            "finished": number("pagination finished:"),
            "bare": number("bare window first frame:"),
            "peak": number("peak memory: reader"),
            "bare_peak": number(r"peak memory: reader [\d.]+ KB, bare window"),
            "book": number("book text"),
            "paginating": number("pagination finished:") - number("  font tables")}


def main():
    runs = {}
    for path in sys.argv[1].split(","):
        runs.update(medians(path))
    spread = start_up(sys.argv[2])
    make_text = read_text(sys.argv[3])
    big = start_up(sys.argv[4])
    rows = []

    def row(figure, target, measured, ok):
        rows.append((figure, target, measured, "yes" if ok else "NO"))

    first, bare = spread["first"], spread["bare"]
    row("first spread on screen, 4.3 MB ebook, from process start (bench/first_spread.sh)",
        "≤ 1.5 × the bare window, < 90 ms",
        f"{first:.0f} ms; bare Qt window {bare:.0f} ms ({first / bare:.2f} ×)",
        first <= 1.5 * bare and first < 90)
    peak, bare_peak, book = spread["peak"], spread["bare_peak"], spread["book"]
    row("peak memory of that run", "≤ bare window + 2 × the text",
        f"{peak / 1024:.1f} MB; bare {bare_peak / 1024:.1f} MB + 2 × {book / 1024:.1f} MB",
        peak <= bare_peak + 2 * book)
    row("30 MB ebook (the King James text 7 times), first spread from process start "
        "(bench/first_spread.sh)", "≤ 500 ms",
        f"{big['first']:.0f} ms; bare Qt window {big['bare']:.0f} ms", big["first"] <= 500)
    row("30 MB ebook, paginated to the end, from process start (from the start of pagination)",
        "≤ 500 ms", f"{big['finished']:.0f} ms ({big['paginating']:.0f} ms)",
        big["finished"] <= 500)
    row("peak memory of the 30 MB ebook's run", "≤ bare window + 3 × the text",
        f"{big['peak'] / 1024:.1f} MB; bare {big['bare_peak'] / 1024:.1f} MB + "
        f"3 × {big['book'] / 1024:.1f} MB", big["peak"] <= big["bare_peak"] + 3 * big["book"])

    names = {0: "font size", 1: "page mode", 2: "window width"}
    for arg, what in names.items():
        run = runs[f"BM_Relayout/change:{arg}/iterations:6/manual_time"]
        wait = run["longest_wait_ms"]
        row(f"re-layout after a {what} change, command to new spread, King James ebook "
            "(BM_Relayout)", "≤ 60 ms; input never waits > 50 ms",
            f"{ms(run):.1f} ms; all paginated at {run['paginated_ms']:.0f} ms; "
            f"longest wait {wait:.0f} ms", ms(run) <= 60 and wait <= 50)
    turn = runs["BM_InstantTurnFromCache"]
    row("instant forward turn from the cache, key to painted spread (BM_InstantTurnFromCache)",
        "≤ 1 ms", f"{ms(turn):.2f} ms wall, {ms(turn, 'cpu_time'):.2f} ms CPU", ms(turn) <= 1)
    load = runs["BM_LoadBook"]
    row("load a 5 MB ebook: read, unpack, reformat (BM_LoadBook)", "≥ 200 MB/s",
        f"{ms(load):.1f} ms, {mb_per_s(load):.0f} MB/s", mb_per_s(load) >= 200)
    paginate, wrap = runs["BM_Paginate"], runs["BM_BareWordWrap"]
    row("paginate 4.3 MB (BM_Paginate; BM_BareWordWrap)", "≥ 200 MB/s, ≤ 2.5 × a bare wrap",
        f"{ms(paginate):.1f} ms, {mb_per_s(paginate):.0f} MB/s; bare wrap {ms(wrap):.1f} ms",
        mb_per_s(paginate) >= 200 and ms(paginate) <= 2.5 * ms(wrap))
    tables = runs["BM_MakeArraysRealFont"]
    row("font tables from a real font (BM_MakeArraysRealFont)", "≤ 10 ms",
        f"{ms(tables):.2f} ms", ms(tables) <= 10)
    pages = [runs[n] for n in runs if n.startswith("BM_ComposeOnePage")]
    slowest = max(ms(p) for p in pages)
    row("compose one page, plain / justified / with a search term (BM_ComposeOnePage)",
        "≤ 1 ms", " / ".join(f"{ms(p):.2f}" for p in pages) + " ms", slowest <= 1)
    words = by_argument(runs, "BM_ComposeLongWord")
    growth = ms(words[-1]) / ms(words[0])
    row("compose a page of one 64 K / 256 K / 1 M character word (BM_ComposeLongWord)",
        "linear (≤ 24 × for 16 × the input)",
        " / ".join(f"{ms(w):.2f}" for w in words) + f" ms ({growth:.1f} ×)", growth <= 24)
    pack = runs["BM_PackBigText/iterations:3/real_time"]
    make = runs["BM_MakeEbookBigText/iterations:3/real_time"]
    row("make an ebook of 64 MB: in memory (BM_PackBigText); with writing (BM_MakeEbookBigText)",
        "≥ 100 MB/s", f"{mb_per_s(pack):.0f} MB/s; {mb_per_s(make):.0f} MB/s",
        mb_per_s(make) >= 100)
    times = float(re.search(r"peak memory: [\d.]+ MB, ([\d.]+) x", make_text).group(1))
    row("vireo-tool make on a 100 MB text, peak memory (bench/make_memory.sh)", "≤ 3 × the text",
        f"{times:.2f} ×", times <= 3)
    keys = by_argument(runs, "BM_LoadDescendingSettings")
    growth = ms(keys[-1], "cpu_time") / ms(keys[0], "cpu_time")
    row("settings file of 25 K / 100 K / 400 K keys in descending order "
        "(BM_LoadDescendingSettings)", "n log n (≤ 24 × for 16 × the keys)",
        " / ".join(f"{ms(k, 'cpu_time'):.0f}" for k in keys) + f" ms CPU ({growth:.1f} ×)",
        growth <= 24)

    print("| figure | target | measured | pass |")
    print("|---|---|---|---|")
    for r in rows:
        print("| " + " | ".join(r) + " |")


if __name__ == "__main__":
    main()
