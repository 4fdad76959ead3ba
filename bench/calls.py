#!/usr/bin/env python3
"""Reads what Wine's relay says of luruludri-bench --calls from stdin; prints the system calls of each part as a line of
JSON. Calls that a system call makes itself count as one with it."""
import collections
import json
import re
import sys

SYSTEM_CALL = re.compile(r"Reg\w+|\w*(File|Director|Folder|Handle)\w*|GetLocalTime|Query\w+")
# What only looks at memory of the process itself.
NO_SYSTEM_CALL = re.compile(r"GetModule\w+|AreFileApisANSI|GetFileType|\w*StdHandle")

part, depth, calls = None, 0, collections.Counter()
for line in sys.stdin:
    call = re.match(r"[0-9a-f]+:(Call|Ret )\s?(\w+)\.(\w+)\((.*)", line)
    if not call:
        continue
    is_call, name = call[1] == "Call", call[3]
    if is_call and 'L"calls: ' in call[4]:
        if part:
            print(json.dumps({"build": "windows", "size": 0, "figure": f"system calls: {part}", "names": calls}))
        told = re.search(r'L"calls: ([^"]*)"', call[4])[1]
        part, depth, calls = None if told == "end" else told, -1, collections.Counter()
    if is_call:
        if part and depth == 0 and SYSTEM_CALL.fullmatch(name) and not NO_SYSTEM_CALL.fullmatch(name):
            calls[name] += 1
        depth += 1
    else:
        depth = max(0, depth - 1)
