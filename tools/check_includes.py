#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_includes.py GRAPH: holds every #include of the program against the link graph, which
`cmake --graphviz=GRAPH` writes. A folder may include its own headers and those of what its target links: of what
that links in turn as well, but not within platform/, where each service names what it uses.
Nor may a widget library be linked by the engine, the maker of its table and its tests."""
import pathlib
import re
import sys

WIDGETS = {"Qt6::Gui", "Qt6::Widgets", "Qt6::UiTools"}
WITHOUT_WIDGETS = ("lumivane_engine", "make_lunations", "lumivane_engine_tests", "lumivane_model")
TARGETS = [  # a folder's target; the first that fits
    (r"platform/(\w+)/", r"lumivane_\1"),
    (r"shared/utilities/classes/values/", "lumivane_values"),
    (r"shared/utilities/", "lumivane_utilities"),
    (r"app/(\w+)/", r"lumivane_\1"),
    (r"app/main\.cpp", "Lumivane"),
]


def target_of(path):
    for pattern, target in TARGETS:
        if found := re.match(pattern, path):
            return found.expand(target)
    return None


def read_graph(path):
    links = {}
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        if found := re.search(r"// (\S+) -> (\S+)$", line):
            links.setdefault(found[1], set()).add(found[2])
    return links


def reachable(links, target):
    seen, waiting = set(), [target]
    while waiting:
        for other in links.get(waiting.pop(), ()):
            if other not in seen:
                seen.add(other)
                waiting.append(other)
    return seen


def main():
    links = read_graph(sys.argv[1])
    wrong = []
    for folder in ("app", "platform", "shared"):
        for path in sorted(map(str, pathlib.Path(folder).rglob("*.*"))):
            if not path.endswith((".h", ".cpp")):
                continue
            own = target_of(path)
            if own not in links and own != "lumivane_log":
                wrong.append(f"{path}: no target {own}")
            within_platform = path.startswith("platform/")
            allowed = {own} | (links.get(own, set()) if within_platform else reachable(links, own))
            for number, line in enumerate(pathlib.Path(path).read_text(encoding="utf-8").splitlines(), 1):
                found = re.match(r'\s*#\s*include\s*"([^"]+)"', line)
                if not found or found[1].endswith(".moc"):
                    continue
                other = target_of(found[1])
                if other not in allowed:
                    wrong.append(f"{path}:{number}: {own} may not use {found[1]}")
    for target in WITHOUT_WIDGETS:
        if target not in links:
            wrong.append(f"no target {target}")
        if graphical := reachable(links, target) & WIDGETS:
            wrong.append(f"{target} links {', '.join(sorted(graphical))}")
    print("\n".join(wrong), file=sys.stderr)
    return 1 if wrong else 0


sys.exit(main())
