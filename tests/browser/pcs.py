"""Recorded PCs with their catalogues, made up for tests of reports."""

import json

UNINSTALL = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"

# What must stay text, wherever a page shows it.
NAMES = [
    "</script><script>document.title='owned'</script>",
    "<img src=x onerror=\"document.title='owned'\">",
    "</style><style>*{display:none}</style>",
    "<!--<script>",
    "\"quotes\" and 'more' & &amp;lt; `${x}`",
    "{{{recording}}}{{name}}{{#games}}",
    "line\u2028and paragraph\u2029separated",
    "\u202egnp.exe\u2066 isolated \u05e9\u05dc\u05d5\u05dd",
    "L" * 10_000,
    "word " * 2_000 + "end",
]

# The same, but what no catalogue takes; a PC can have it.
ODD_NAMES = ["start\u0001middle\u001b[31m\u007f\u0085end", "two\r\nlines", "lone \ud800 surrogate"]

# What is shown of these. The trace has no half pairs, and so no way to tell of one.
SHOWN_ODD_NAMES = ["start\u2401middle\u241b[31m\u2421\ufffdend", "two\u240d\u240alines", "lone ? surrogate"]


def program(name, folder):
    return {"DisplayName": name, "InstallLocation": folder, "UninstallString": folder + "\\uninstall.exe"}


def write(folder, name, drives, registry, games):
    """Writes the files of a PC and of a catalogue; their paths."""
    pc = folder / (name + ".json")
    catalogue = folder / (name + "-catalogue.json")
    pc.write_text(json.dumps({"format": "luruludri-pc", "version": 1, "drives": drives, "registry": registry}))
    catalogue.write_text(json.dumps({"games": games}))
    return pc, catalogue


def hostile(folder):
    """A PC on which everything is called as nothing should be. Of each name one game is found and one is not."""
    registry = {}
    folders = []
    games = []
    for number, name in enumerate(NAMES):
        folders.append({"folder": str(number), "entries": ["game.exe"]})
        registry[f"{UNINSTALL}{number}"] = program(name, f"C:\\Games\\{number}")
        for kind, executable in (("found", "game.exe"), ("not found", "none.exe")):
            finders = [{"type": "uninstall", "displayName": name, "executables": [executable]},
                       {"type": "steam", "appId": name, "installFolderName": name, "executables": [executable]}]
            games.append({"name": f"{name} {kind}", "finders": finders})
    for number, name in enumerate(ODD_NAMES):
        registry[f"{UNINSTALL}odd{number}"] = program(name, "C:\\Odd\\" + name)
    return write(folder, "hostile", {"C": [{"folder": "Games", "entries": folders}]}, registry, games)


def large(folder):
    """A PC with 5,000 games, each fifth without its executable, in 100,000 files."""
    words = "Nacht Stern Wald Fluss Berg Turm Reich Sturm Feuer Eis Wind Nebel Garten Schiff Drache Ritter".split()
    registry = {}
    folders = []
    games = []
    for number in range(5_000):
        name = f"{words[number % 16]}{words[number // 16 % 16].lower()} {words[number // 256 % 16]} {number}"
        first = "game.exe" if number % 5 else "other.exe"
        folders.append({"folder": name, "entries": [first] + [f"tool{tool}.exe" for tool in range(19)]})
        registry[f"{UNINSTALL}{number}"] = program(name, "C:\\Games\\" + name)
        steam = {"type": "steam", "appId": str(100_000 + number), "installFolderName": name, "executables": ["game.exe"]}
        uninstall = {"type": "uninstall", "displayName": name, "executables": ["game.exe"]}
        games.append({"name": name, "finders": [steam, uninstall]})
    return write(folder, "large", {"C": [{"folder": "Games", "entries": folders}]}, registry, games)
