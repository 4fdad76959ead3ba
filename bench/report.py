#!/usr/bin/env python3
"""Makes the tables and the plot of docs/performance.md of the results of luruludri-bench: report.py RESULTS DOCS."""
import json
import math
import pathlib
import sys

GOALS = {"build": 1.1, "memory": 2.0, "containing, an entry": 5e-9, "pass": 1.5, "Create": 0.2e-3}
BUILDS = ("uninstall", "games explorer", "start menu", "steam", "epic", "oculus")
COLOURS = ("#1b6ca8", "#d1495b", "#2e8b57", "#8a5a9e", "#c77f1a", "#5f6b6d")


def time_text(seconds):
    for unit, factor in (("s", 1), ("ms", 1e3), ("µs", 1e6), ("ns", 1e9)):
        if seconds * factor >= 1 or unit == "ns":
            return f"{seconds * factor:.3g} {unit}"


def goal_of(name):
    return next((goal for end, goal in GOALS.items() if name.endswith(end)), None)


def cell(result):
    if "bytes" in result:
        return f"{result['bytes'] / 1024:.0f} KiB"
    goal, value = goal_of(result["figure"]), result.get("ratio", result.get("seconds"))
    is_missed = goal and (result["seconds"] if result["figure"] == "Create" else value) > goal
    text = f"{value:.2f}" if "ratio" in result else time_text(value)
    if "low" in result and "ratio" in result:
        text += f" ({result['low']:.2f}–{result['high']:.2f}), {time_text(result['seconds'])}"
    return f"**{text}**" if is_missed else text


def table(results):
    sizes = sorted({r["size"] for r in results})
    lines = ["| figure | " + " | ".join(f"{size:,} programs" for size in sizes) + " |", "|---" * (len(sizes) + 1) + "|"]
    for name in dict.fromkeys(r["figure"] for r in results):
        by_size = {r["size"]: cell(r) for r in results if r["figure"] == name}
        lines.append(f"| {name} | " + " | ".join(by_size.get(size, "") for size in sizes) + " |")
    return "\n".join(lines)


def plot(results):
    """How often a list's making takes what its floor takes, by the number of entries; logarithmic to the right."""
    width, height, left, top, right, bottom = 720, 360, 60, 20, 150, 45
    points = {name: sorted((r["entries"], r["ratio"]) for r in results if r["figure"] == f"{name} build")
              for name in BUILDS}
    all_points = [point for line in points.values() for point in line]
    low, high = (f(math.log10(entries) for entries, _ in all_points) for f in (min, max))
    most = max(1.2, max(ratio for _, ratio in all_points) + 0.05)
    least = min(0.9, min(ratio for _, ratio in all_points) - 0.05)

    def x(entries):
        return left + (math.log10(entries) - low) / (high - low) * (width - left - right)

    def y(ratio):
        return top + (most - ratio) / (most - least) * (height - top - bottom)

    def text(at_x, at_y, words, extra=""):
        return f'<text x="{at_x:.1f}" y="{at_y:.1f}" {extra}>{words}</text>'

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" font-family="sans-serif" '
             'font-size="12">', f'<rect width="{width}" height="{height}" fill="white"/>']
    for ratio in (step / 10 for step in range(math.ceil(least * 10), math.floor(most * 10) + 1)):
        dash = 'stroke="#d1495b" stroke-dasharray="6 4"' if abs(ratio - GOALS["build"]) < 0.01 else 'stroke="#ddd"'
        parts.append(f'<line x1="{left}" x2="{width - right}" y1="{y(ratio):.1f}" y2="{y(ratio):.1f}" {dash}/>')
        parts.append(text(left - 8, y(ratio) + 4, f"{ratio:.1f}", 'text-anchor="end"'))
    for entries in sorted({entries for entries, _ in all_points}):
        parts.append(text(x(entries), height - bottom + 18, f"{entries:,}", 'text-anchor="middle"'))
    parts.append(text((left + width - right) / 2, height - 8, "entries (broken line: the goal)", 'text-anchor="middle"'))
    label_y = -math.inf
    for (name, line), colour in sorted(zip(points.items(), COLOURS), key=lambda pair: -pair[0][1][-1][1]):
        places = " ".join(f"{x(entries):.1f},{y(ratio):.1f}" for entries, ratio in line)
        parts.append(f'<polyline points="{places}" fill="none" stroke="{colour}" stroke-width="2"/>')
        parts += [f'<circle cx="{x(e):.1f}" cy="{y(r):.1f}" r="3" fill="{colour}"/>' for e, r in line]
        label_y = max(label_y + 15, y(line[-1][1]) + 4)
        parts.append(text(width - right + 12, label_y, f"{name} {line[-1][1]:.2f}", f'fill="{colour}"'))
    return "\n".join(parts + ["</svg>"]) + "\n"


def main():
    results = [json.loads(line) for line in pathlib.Path(sys.argv[1]).read_text().splitlines()]
    docs = pathlib.Path(sys.argv[2])
    text = (docs / "performance.md").read_text()
    calls = "\n".join(
        f"| {r['figure'][len('system calls: '):]} | " + (", ".join(f"{n} × {name}" for name, n in r["names"].items()) or "none")
        + " |" for r in results if "names" in r)
    tables = {build: table([r for r in results if r["build"] == build and "names" not in r])
              for build in ("windows", "native")}
    tables["calls"] = "| | calls |\n|---|---|\n" + calls
    for name, content in tables.items():
        begin, end = f"<!-- {name} -->\n", f"\n<!-- end of {name} -->"
        before, rest = text.split(begin)
        text = before + begin + content + end + rest.split(end)[1]
    (docs / "performance.md").write_text(text)
    (docs / "performance.svg").write_text(plot([r for r in results if r["build"] == "windows"]))


main()
