#!/usr/bin/env python3
"""Writes bench/RESULTS.md from the JSON output of qbformul_bench (Google Benchmark).

Figures are the CPU time of the least disturbed of the repetitions (the "min" statistic the program adds),
per record, with MB/s on each codec's own bytes and the ratio to the hand-written codec. The part of an
existing RESULTS.md below KEEP_MARKER (notes written by hand: profiles, fixes) is carried over, and so are
the "before" figures, which --set-before replaces with the figures of this run.
"""
import argparse
import datetime
import json
import re
import sys

KEEP_MARKER = "<!-- Everything below this line is kept when bench/report.py regenerates the figures. -->"
BEFORE_RE = re.compile(r"<!-- before-figures (\{.*?\}) -->", re.S)

CODECS = [
    ("hand_codec", "hand-written little-endian codec (reference)"),
    ("memcpy", "memcpy of the same bytes"),
    ("rwfile_tmp", "RWFile, file in /tmp (disk)"),
    ("rwfile_shm", "RWFile, file in /dev/shm (memory)"),
    ("bstream", "RWbostream / RWbistream"),
    ("pstream", "RWpostream / RWpistream"),
    ("boost_binary", "Boost binary archive"),
    ("cereal_binary", "cereal binary archive"),
]
WORKLOADS = [
    ("L145", "One qbFormularL145, every field filled",
     "Each iteration saves {records} records, each as its own operation (`f << form`: magic, class id, record; "
     "Boost and cereal: one archive per iteration), into a sink reset per iteration, and restores them into "
     "fresh objects (the library: from the factory, `f >> p`; the others: fresh mirror structs). The RWFile "
     "save flushes at the end of each iteration, so the write(2) is counted."),
    ("Antrag50", "The application: 50 forms of all classes",
     "Each iteration saves the whole list (`f << liste`; peers: one archive of a vector of 50 mirrors) and "
     "restores it into a fresh list (`f >> liste`; peers: a fresh vector). Per record = per application / 50."),
]
XML_GROUPS = [
    ("XMLListe", "The list's XMLgetDat (each form's header, as the list exports it)"),
    ("XMLFormulare", "Every form's own XMLgetDat under one root (all fields)"),
]
TO_NS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def load(paths):
    """{name: {"ns": cpu ns per iteration, "records": n, "bytes_per_record": b}} and the context."""
    figures, context = {}, {}
    for path in paths:
        with open(path, encoding="utf-8") as f:
            data = json.load(f)
        context.update(data.get("context", {}))
        ranked = {}
        for b in data["benchmarks"]:
            if b.get("error_occurred"):
                figures[b.get("run_name", b["name"])] = {"error": b.get("error_message", "error")}
                continue
            kind = b.get("aggregate_name") if b.get("run_type") == "aggregate" else "iteration"
            rank = {"min": 0, "median": 1, "iteration": 2}.get(kind)
            if rank is None:
                continue
            name = b.get("run_name", b["name"])
            if name in ranked and ranked[name] <= rank:
                continue
            ranked[name] = rank
            figures[name] = {
                "ns": b["cpu_time"] * TO_NS[b.get("time_unit", "ns")],
                "records": b.get("records", 1),
                "bytes_per_record": b.get("bytes_per_record", 0.0),
                "statistic": kind,
            }
    return figures, context


def per_record(figures, name):
    f = figures.get(name)
    if not f or "error" in f:
        return None
    return f["ns"] / f["records"]


def fmt(v, digits=0):
    if v is None:
        return "–"
    return f"{v:,.{digits}f}"


def ratio(a, b):
    return None if a is None or b is None or b == 0 else a / b


def mbps(bytes_per_record, ns):
    return None if not ns else bytes_per_record / ns * 1e3


def summary(figures):
    """The save+restore ns per record of every workload and codec: what the before/after table compares."""
    out = {}
    for group, _, _ in WORKLOADS:
        for key, _ in CODECS:
            s, r = per_record(figures, f"{group}/save/{key}"), per_record(figures, f"{group}/restore/{key}")
            if s is not None and r is not None:
                out[f"{group}/{key}"] = {"save": s, "restore": r}
    for group, _ in XML_GROUPS:
        for way in ("qbformul_tree", "pugixml_direct"):
            v = per_record(figures, f"{group}/write/{way}")
            if v is not None:
                out[f"{group}/{way}"] = {"write": v}
    return out


def workload_table(figures, group):
    lines = [
        "| Codec | Bytes/record | Save ns/record | Save MB/s | Restore ns/record | Restore MB/s "
        "| Save+restore ns/record | Save × hand | Restore × hand | Save+restore × hand |",
        "|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|",
    ]
    hs, hr = per_record(figures, f"{group}/save/hand_codec"), per_record(figures, f"{group}/restore/hand_codec")
    hsr = None if hs is None or hr is None else hs + hr
    for key, label in CODECS:
        save, restore = figures.get(f"{group}/save/{key}"), figures.get(f"{group}/restore/{key}")
        if save is None and restore is None:
            continue
        if (save and "error" in save) or (restore and "error" in restore):
            lines.append(f"| {label} | error: {(save or restore).get('error')} |||||||||")
            continue
        s, r = per_record(figures, f"{group}/save/{key}"), per_record(figures, f"{group}/restore/{key}")
        sr = None if s is None or r is None else s + r
        size = (save or restore)["bytes_per_record"]
        lines.append(
            f"| {label} | {fmt(size)} | {fmt(s)} | {fmt(mbps(size, s))} | {fmt(r)} | {fmt(mbps(size, r))} "
            f"| {fmt(sr)} | {fmt(ratio(s, hs), 2)} | {fmt(ratio(r, hr), 2)} | {fmt(ratio(sr, hsr), 2)} |")
    return lines


def application_line(figures):
    parts = []
    for key, label in CODECS:
        s, r = figures.get(f"Antrag50/save/{key}"), figures.get(f"Antrag50/restore/{key}")
        if s and r and "error" not in s and "error" not in r:
            parts.append(f"{label} {fmt((s['ns'] + r['ns']) / 1e3, 1)} µs")
    return "Save+restore CPU time of one whole application: " + "; ".join(parts) + "."


def xml_table(figures):
    lines = [
        "| Document | Way | µs per application | ns per form | MB/s of XML | × pugixml direct |",
        "|---|---|--:|--:|--:|--:|",
    ]
    for group, label in XML_GROUPS:
        direct = figures.get(f"{group}/write/pugixml_direct")
        for way, way_label in (("qbformul_tree", "`XMLgetDat` into `CQBXMLdata`, then `asXML`"),
                               ("pugixml_direct", "pugixml built straight from the forms, `save`")):
            f = figures.get(f"{group}/write/{way}")
            if f is None:
                continue
            if "error" in f:
                lines.append(f"| {label} | {way_label} | error: {f['error']} ||||")
                continue
            rec = f["ns"] / f["records"]
            rel = ratio(f["ns"], direct["ns"]) if direct and "error" not in direct else None
            lines.append(f"| {label} | {way_label} | {fmt(f['ns'] / 1e3, 1)} | {fmt(rec)} "
                         f"| {fmt(mbps(f['bytes_per_record'], rec))} | {fmt(rel, 2)} |")
    return lines


def targets_table(figures):
    lines = ["| Target | Workload | Codec | Measured | Limit | Met |", "|---|---|---|--:|--:|---|"]

    def sr(group, key):
        s, r = per_record(figures, f"{group}/save/{key}"), per_record(figures, f"{group}/restore/{key}")
        return None if s is None or r is None else s + r

    ours = [("rwfile_tmp", "RWFile /tmp"), ("rwfile_shm", "RWFile /dev/shm"), ("bstream", "binary stream")]
    for group, _, _ in WORKLOADS:
        hand = sr(group, "hand_codec")
        for key, label in ours:
            v = ratio(sr(group, key), hand)
            lines.append(f"| save+restore time ÷ hand codec's ≤ 1.2 | {group} | {label} | {fmt(v, 2)} × | 1.20 × "
                         f"| {'yes' if v is not None and v <= 1.2 else 'no'} |")
        for peer, peer_label in (("boost_binary", "Boost"), ("cereal_binary", "cereal")):
            for key, label in ours:
                v = ratio(sr(group, peer), sr(group, key))
                lines.append(f"| {peer_label}'s save+restore time ÷ ours ≥ 2 | {group} | {label} | {fmt(v, 2)} × "
                             f"| 2.00 × | {'yes' if v is not None and v >= 2 else 'no'} |")
    for key, label in ours:
        s, r = figures.get(f"Antrag50/save/{key}"), figures.get(f"Antrag50/restore/{key}")
        v = None if not s or not r or "error" in s or "error" in r else (s["ns"] + r["ns"]) / 1e3
        lines.append(f"| one application save+restore ≤ 50 µs CPU | Antrag50 | {label} | {fmt(v, 1)} µs | 50 µs "
                     f"| {'yes' if v is not None and v <= 50 else 'no'} |")
    return lines


def before_after(before, now):
    if before is now:
        return [f"This run's figures are the \"before\" figures: {before.get('label', '')}."]
    lines = [f"Before: {before.get('label', '')} ({before.get('date', '')}, commit {before.get('commit', '?')}).",
             "",
             "| Workload / codec | Save before | Save now | Restore before | Restore now | Save+restore now / before |",
             "|---|--:|--:|--:|--:|--:|"]
    for name, ops in now["figures"].items():
        old = before["figures"].get(name, {})
        if "write" in ops:
            lines.append(f"| {name} (write) | {fmt(old.get('write'))} | {fmt(ops['write'])} | | "
                         f"| {fmt(ratio(ops['write'], old.get('write')), 2)} |")
            continue
        sr_old = old.get("save", 0) + old.get("restore", 0) if old else None
        lines.append(f"| {name} | {fmt(old.get('save'))} | {fmt(ops['save'])} | {fmt(old.get('restore'))} "
                     f"| {fmt(ops['restore'])} | {fmt(ratio(ops['save'] + ops['restore'], sr_old), 2)} |")
    return lines


def main():
    p = argparse.ArgumentParser(description=__doc__)
    p.add_argument("json", nargs="+", help="benchmark output (--benchmark_out_format=json)")
    p.add_argument("--out", required=True)
    p.add_argument("--cpu", default="", help="CPU model (lscpu)")
    p.add_argument("--cores", default="", help="logical CPUs")
    p.add_argument("--kernel", default="")
    p.add_argument("--versions", default="", help="versions of the libraries compared")
    p.add_argument("--commit", default="")
    p.add_argument("--command", default="scripts/bench.sh")
    p.add_argument("--set-before", metavar="LABEL", help="keep this run's figures as the 'before' figures")
    p.add_argument("--repetitions", default="?", help="repetitions of each benchmark")
    p.add_argument("--min-time", default="?", help="least seconds of each repetition")
    a = p.parse_args()

    figures, ctx = load(a.json)
    try:
        with open(a.out, encoding="utf-8") as f:
            old = f.read()
    except FileNotFoundError:
        old = ""
    kept = old.split(KEEP_MARKER, 1)[1] if KEEP_MARKER in old else "\n"
    kept = BEFORE_RE.sub("", kept).rstrip() + "\n"
    m = BEFORE_RE.search(old)
    before = json.loads(m.group(1)) if m else None

    date = ctx.get("date", datetime.datetime.now().isoformat())
    now = {"label": a.set_before or "", "date": date, "commit": a.commit, "figures": summary(figures)}
    if a.set_before:
        before = now

    out = ["# Benchmark results", "",
           f"Generated by `{a.command}` on {date[:10]}; do not edit above the marker line, the command rewrites it.",
           "", "## Machine", "",
           f"- CPU: {a.cpu or '?'}, {a.cores or ctx.get('num_cpus', '?')} logical CPUs at "
           f"{ctx.get('mhz_per_cpu', '?')} MHz (shared with other work)",
           f"- Kernel: {a.kernel or '?'}",
           f"- Date: {date}",
           f"- Compiler: {ctx.get('compiler', '?')}, build type {ctx.get('qbformul_build_type') or '(none)'}"
           + ("" if ctx.get("optimized") == "yes" else " — **not optimized: these figures mean little**"),
           f"- Compared with: {a.versions or '?'}",
           f"- Commit: {a.commit or '?'}",
           "",
           f"CPU time per record of the least disturbed of {a.repetitions} repetitions (Google Benchmark's `min` "
           f"statistic added by the program), each repetition at least {a.min_time} s, the repetitions of all "
           "benchmarks interleaved at random so that a slow spell of the shared machine does not fall on one codec "
           "alone. MB/s counts each codec's own bytes (10⁶ bytes). "
           "Before any timing the program reads every codec's output back and compares it with the original, and "
           "the hand codec's bytes with the file RWFile wrote; it stops if any differ.",
           ""]
    for group, title, how in WORKLOADS:
        recs = next((f["records"] for n, f in figures.items() if n.startswith(group + "/") and "records" in f), "")
        out += [f"## {title} (`{group}`)", "", how.format(records=int(recs) if recs else "?"), ""] + workload_table(figures, group) + [""]
        if group == "Antrag50":
            out += [application_line(figures), ""]
    out += ["## XML of the application", "",
            "Both ways write the same document with the same pugixml options; the program compares the two "
            "texts before timing.", ""] + xml_table(figures) + [""]
    out += ["## Targets", "", "Ratios from the tables above; not asserted in any test.", ""] + targets_table(figures)
    out += [""]
    if before:
        out += ["## Before and after", "", "ns per record, CPU time."] + [""] + before_after(before, now) + [""]
    out += [KEEP_MARKER, ""] + ([kept.strip("\n"), ""] if kept.strip() else [])
    out += [f"<!-- before-figures {json.dumps(before, sort_keys=True)} -->" if before else ""]
    with open(a.out, "w", encoding="utf-8") as f:
        f.write("\n".join(out).rstrip("\n") + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
