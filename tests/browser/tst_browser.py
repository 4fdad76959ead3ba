#!/usr/bin/python3
"""Opens reports in a browser: what it shows of them, what it runs, what it asks for.

tst_browser.py SOURCE LURULUDRI-FIND [-v] [TEST…]
"""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).parent))

import pcs  # noqa: E402
from browser import Browser  # noqa: E402
from selenium.webdriver.common.by import By  # noqa: E402
from selenium.webdriver.common.keys import Keys  # noqa: E402
from selenium.webdriver.support.ui import Select  # noqa: E402

SOURCE, FIND = (Path(argument).absolute() for argument in sys.argv[1:3])
SAMPLE = SOURCE / "samples/pc", SOURCE / "samples/catalogue.json"

GAMES = "#games-table tbody tr"
OTHERS = "#others-table tbody tr"

# The contrast of each text to what is behind it, where that is less than people with poor sight need.
POOR_CONTRASTS = """
const channel = value => value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4;
const numbers = colour => colour.match(/[0-9.]+/g).map(Number);
const luminance = ([r, g, b]) => 0.2126 * channel(r / 255) + 0.7152 * channel(g / 255) + 0.0722 * channel(b / 255);
function ground(element) {
    for (let at = element; at; at = at.parentElement) {
        const colour = numbers(getComputedStyle(at).backgroundColor);
        if (colour.length === 3 || colour[3] > 0) {
            return colour;
        }
    }
    return [255, 255, 255];
}
const poor = [];
for (const element of document.querySelectorAll('body *')) {
    const hasText = [...element.childNodes].some(node => node.nodeType === 3 && node.data.trim() !== '');
    if (hasText && element.checkVisibility()) {
        const [a, b] = [luminance(numbers(getComputedStyle(element).color)), luminance(ground(element))];
        const contrast = (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05);
        if (contrast < 4.5) {
            poor.push(`${element.tagName} ${element.className} ${element.textContent.slice(0, 30)}: ${contrast}`);
        }
    }
}
return poor;
"""


def run_find(*arguments):
    environment = dict(os.environ, XDG_DATA_HOME=str(Folder.path), XDG_CONFIG_HOME=str(Folder.path), LC_ALL="C.UTF-8")
    return subprocess.run([FIND, *map(str, arguments)], env=environment, capture_output=True, text=True, check=False)


def answers(pc, catalogue):
    return json.loads(run_find("--pc", pc, "--json", catalogue).stdout)


class Folder:
    """Where the reports are."""

    path = None


class ReportTest(unittest.TestCase):
    """A test of one report, opened anew for each test function."""

    name = None
    pc = None
    catalogue = None
    browser = None

    @classmethod
    def make(cls, name, pc, catalogue):
        cls.name, cls.pc, cls.catalogue = name, pc, catalogue
        cls.page = Folder.path / f"{name}.html"
        if not cls.page.exists():
            made = run_find("--pc", pc, "report", cls.page, catalogue)
            if made.returncode != 0:
                raise AssertionError(made.stderr)

    def setUp(self):
        self.browser.allow_scripts(True)
        self.browser.show_as()
        self.browser.open(self.page)

    def type(self, text):
        field = self.browser.driver.find_element(By.ID, "search")
        field.send_keys(Keys.CONTROL + "a", Keys.BACKSPACE)
        field.send_keys(text)

    def choose(self, state):
        self.browser.driver.find_element(By.XPATH, f"//fieldset//label[span='{state}']").click()

    def choose_finder(self, name):
        Select(self.browser.driver.find_element(By.ID, "finder")).select_by_visible_text(name)

    def click_heading(self, table, title):
        self.browser.driver.find_element(By.XPATH, f"//table[@id='{table}']//th/button[.='{title}']").click()

    def games(self):
        """The names of the games that are shown, in their order."""
        return self.browser.shown(f"{GAMES} th")

    def sorting(self, table):
        return self.browser.run("return [...document.querySelectorAll(`#${arguments[0]} thead th`)]"
                                ".map(th => th.getAttribute('aria-sort'))", table)

    def expect_no_wider_than_the_window(self):
        widths = self.browser.run("const page = document.documentElement; return [page.scrollWidth, page.clientWidth]")
        self.assertLessEqual(widths[0], widths[1])

    def expect_to_be_alone(self):
        """The browser has nothing to complain of, and asked for nothing but the page."""
        self.assertEqual(self.browser.messages(), [])
        self.assertEqual(self.browser.requests(), [self.page.as_uri()])


class Sample(ReportTest):
    @classmethod
    def setUpClass(cls):
        cls.make("sample", *SAMPLE)
        cls.answers = answers(cls.page, cls.catalogue)
        cls.all_games = [game["name"] for game in cls.answers["games"]]

    def test_shows_the_answers(self):
        self.assertEqual(self.games(), self.all_games)
        self.assertEqual(self.browser.driver.title, "Games on this PC: 14 of 17 found")
        for game, row in zip(self.answers["games"], self.browser.driver.find_elements(By.CSS_SELECTOR, GAMES)):
            cells = [cell.text for cell in row.find_elements(By.TAG_NAME, "td")]
            if game["found"]:
                self.assertEqual(cells[:3], ["Found", game["installFolder"], game["launchCommand"]])
            else:
                self.assertEqual(cells[0], "Not found")
        shown = self.browser.texts(".runtimes tbody td:last-child")
        runtimes = self.answers["runtimes"]
        self.assertEqual(shown[0], runtimes["steamExecutablePath"])
        self.assertEqual(shown[4], runtimes["oculusLibraryFolders"][0])
        self.expect_to_be_alone()

    def test_tells_why_a_game_was_not_found_when_it_is_asked_to(self):
        row = self.browser.driver.find_elements(By.CSS_SELECTOR, GAMES)[self.all_games.index("Tiefseelicht")]
        summary = row.find_element(By.TAG_NAME, "summary")
        self.assertEqual(summary.text, "No Steam library has the app 7199210.")
        reasons = row.find_elements(By.CLASS_NAME, "reason")
        self.assertFalse(reasons[0].is_displayed())
        summary.click()
        self.assertTrue(reasons[0].is_displayed())
        self.assertEqual([reason.text for reason in reasons],
                         ['The Uninstall registry has no program under "Steam App 7199210".',
                          "No Steam library has the app 7199210."])

    def test_shows_what_else_is_installed(self):
        self.assertIn(["Zinngießer", "Epic launcher", "D:\\Epic Games\\Zinngiesser"],
                      self.browser.run(f"return [...document.querySelectorAll('{OTHERS}')]"
                                       ".map(row => [...row.cells].map(cell => cell.textContent))"))
        self.assertNotIn("Käferrennen", self.browser.texts(f"{OTHERS} th"))

    def test_tells_no_private_name(self):
        self.assertNotIn("Jördis", self.page.read_text())
        self.assertIn("C:\\Users\\user\\", self.page.read_text())

    def test_searching_shows_what_has_all_words(self):
        self.type("KOLIBRI")
        self.assertEqual(self.games(), ["Kolibri Canyon"])
        self.assertEqual(self.browser.texts("#games-count"), ["1 of 17 shown"])
        self.type("spiele d:")
        self.assertEqual(self.games(), ["Käferrennen", "Sturmvogel 2", "競走クラブ", "Zeppelinpost"])
        self.type("no steam library")
        self.assertEqual(self.games(), ["Tiefseelicht"])
        self.type("zinngieß")
        self.assertEqual(self.games(), [])
        self.assertEqual(self.browser.shown("#games-none"), ["No game matches."])
        self.assertEqual(self.browser.shown(f"{OTHERS} th"), ["Zinngießer"])
        self.type("")
        self.assertEqual(self.games(), self.all_games)
        self.assertEqual(self.browser.texts("#games-count"), [""])
        self.assertEqual(self.browser.shown("#games-none"), [])

    def test_filters_go_together(self):
        self.choose("Not found")
        self.assertEqual(self.games(), ["Nordlicht Tactics", "Tiefseelicht", "Moosgarten"])
        self.choose_finder("steam")
        self.assertEqual(self.games(), ["Tiefseelicht"])
        self.choose("Found")
        self.assertEqual(self.games(), ["Fjordflug VR", "Orbitkurier"])
        self.type("orbit")
        self.assertEqual(self.games(), ["Orbitkurier"])
        self.choose("All")
        self.type("")
        self.assertEqual(self.games(), ["Fjordflug VR", "Orbitkurier", "Tiefseelicht"])
        self.choose_finder("any")
        self.assertEqual(self.games(), self.all_games)

    def test_sorts_upwards_downwards_and_as_at_first(self):
        # As an English reader expects it: "ä" by "a", other scripts behind.
        upwards = ["Burgfried 1412", "Fjordflug VR", "Gletscherspalte", "Käferrennen", "Kartonrakete", "Kolibri Canyon",
                   "Lantern Harbour", "Marmor & Messing", "Moosgarten", "Nebelpflug", "Nordlicht Tactics",
                   "Orbitkurier", "Sturmvogel 2", "Tiefseelicht", "Wörterlabyrinth", "Zeppelinpost", "競走クラブ"]
        self.assertEqual(self.sorting("games-table"), ["none"] * 5)
        self.click_heading("games-table", "Game")
        self.assertEqual(self.games(), upwards)
        self.assertEqual(self.sorting("games-table"), ["ascending"] + ["none"] * 4)
        self.click_heading("games-table", "Game")
        self.assertEqual(self.games(), upwards[::-1])
        self.assertEqual(self.sorting("games-table"), ["descending"] + ["none"] * 4)
        self.click_heading("games-table", "Game")
        self.assertEqual(self.games(), self.all_games)
        self.assertEqual(self.sorting("games-table"), ["none"] * 5)

    def test_sorting_keeps_the_order_of_equals_and_what_is_hidden_hidden(self):
        self.choose_finder("steam")
        self.click_heading("games-table", "Status")
        self.assertEqual(self.games(), ["Fjordflug VR", "Orbitkurier", "Tiefseelicht"])
        self.click_heading("games-table", "Finder")
        self.assertEqual(self.sorting("games-table"), ["none"] * 4 + ["ascending"])
        self.click_heading("others-table", "Name")
        names = self.browser.shown(f"{OTHERS} th")
        self.assertEqual(names, sorted(names, key=str.lower))

    def test_can_be_used_by_keys_alone(self):
        active = self.browser.driver.switch_to
        for _ in range(5):
            active.active_element.send_keys(Keys.TAB)
        self.assertEqual(active.active_element.get_attribute("id"), "search")
        self.assertNotEqual(self.browser.run("return getComputedStyle(document.activeElement).outlineStyle"), "none")
        active.active_element.send_keys(Keys.TAB)
        active.active_element.send_keys(Keys.ARROW_RIGHT, Keys.ARROW_RIGHT)
        self.assertEqual(self.games(), ["Nordlicht Tactics", "Tiefseelicht", "Moosgarten"])
        self.assertNotEqual(self.browser.run("return getComputedStyle(document.activeElement.nextSibling).outlineStyle"),
                            "none")
        for _ in range(2):
            active.active_element.send_keys(Keys.TAB)
        active.active_element.send_keys(Keys.ENTER)
        self.assertEqual(self.sorting("games-table")[0], "ascending")

    def test_tells_what_things_are_to_who_cannot_see_them(self):
        for width in (360, 1280):
            self.browser.show_as(width=width, height=4000)
            nodes = [node for node in self.browser.command("Accessibility.getFullAXTree")["nodes"] if not node["ignored"]]
            names = {(node["role"]["value"], node.get("name", {}).get("value", "")) for node in nodes}
            for expected in (("searchbox", "Search"), ("combobox", "Finder"), ("radio", "Not found"), ("group", "Games"),
                             ("search", ""), ("navigation", "Contents"), ("heading", "Runtimes"), ("region", "Games"),
                             ("rowheader", "Käferrennen"), ("button", "Game")):
                self.assertIn(expected, names)
            roles = [node["role"]["value"] for node in nodes]
            rows = len(self.browser.texts("tr"))
            self.assertEqual((roles.count("table"), roles.count("row")), (3, rows))

    def test_fits_narrow_and_wide_windows_in_light_and_dark(self):
        grounds = set()
        for width in (320, 360, 1280):
            for scheme in ("light", "dark"):
                self.browser.show_as(width=width, scheme=scheme)
                self.browser.run("document.querySelectorAll('details').forEach(details => details.open = true)")
                self.expect_no_wider_than_the_window()
                self.assertEqual(self.browser.run(POOR_CONTRASTS), [])
                grounds.add(self.browser.run("return getComputedStyle(document.body).backgroundColor"))
        self.assertEqual(len(grounds), 2)

    def test_a_finder_stands_on_one_line(self):
        longest = "userProvidedLocation"
        self.browser.run("document.querySelector('.finders span').textContent = arguments[0]", longest)
        for width in (360, 820, 1280):
            self.browser.show_as(width=width)
            lines = self.browser.run("const span = document.querySelector('.finders span');"
                                     "return span.offsetHeight / parseFloat(getComputedStyle(span).lineHeight)")
            self.assertLess(lines, 1.5, f"{longest} at {width} pixels")

    def test_is_printed_without_what_only_a_window_needs(self):
        self.browser.show_as(scheme="dark", media="print")
        self.assertEqual(self.browser.shown(".tools"), [])
        self.assertEqual(self.games(), self.all_games)
        self.assertEqual(self.browser.run("return getComputedStyle(document.body).backgroundColor"), "rgb(255, 255, 255)")
        self.assertEqual(self.browser.run(POOR_CONTRASTS), [])

    def test_is_read_without_scripts(self):
        self.browser.allow_scripts(False)
        self.browser.open(self.page)
        self.assertEqual(self.games(), self.all_games)
        self.assertEqual(self.browser.shown(".tools, thead button, .none"), [])
        summary = self.browser.driver.find_element(By.CSS_SELECTOR, f"{GAMES} summary")
        summary.click()
        self.assertEqual(self.browser.shown(f"{GAMES} .reason"), ["The folder C:\\Games\\Nordlicht Tactics is missing."])
        self.expect_to_be_alone()

    def test_lets_nothing_else_run_or_load(self):
        ran = self.browser.driver.execute_async_script("""
            const done = arguments[0];
            const refused = [];
            document.addEventListener('securitypolicyviolation', event => refused.push(event.effectiveDirective));
            const script = document.createElement('script');
            script.textContent = 'window.ran = true';
            const image = document.createElement('img');
            image.src = 'https://example.invalid/x.png';
            const style = document.createElement('style');
            style.textContent = 'body { display: none }';
            const frame = document.createElement('iframe');
            frame.src = 'https://example.invalid/';
            document.body.append(script, image, style, frame);
            document.body.setAttribute('onclick', 'window.ran = true');
            document.body.click();
            fetch('https://example.invalid/').catch(() => {});
            navigator.sendBeacon('https://example.invalid/', 'x');
            setTimeout(() => done([window.ran === undefined, getComputedStyle(document.body).display, refused]), 300);
        """)
        self.assertEqual(ran[:2], [True, "block"])
        self.assertEqual(set(ran[2]), {"script-src-elem", "script-src-attr", "img-src", "style-src-elem", "frame-src",
                                       "connect-src"})

    def test_is_replayed_as_a_browser_saved_it(self):
        self.type("kolibri")
        self.click_heading("games-table", "Game")
        saved = Folder.path / "saved.html"
        saved.write_text("<!DOCTYPE html>\n<!-- saved from url=(0014)about:internet -->\n" +
                         self.browser.run("return document.documentElement.outerHTML"))
        self.assertEqual(answers(saved, self.catalogue), self.answers)
        self.browser.open(saved)
        self.assertEqual(sorted(self.games()), sorted(self.all_games))
        self.type("kolibri")
        self.assertEqual(self.games(), ["Kolibri Canyon"])
        self.click_heading("games-table", "Game")
        self.assertEqual(self.sorting("games-table"), ["ascending"] + ["none"] * 4)
        self.assertEqual(self.browser.messages(), [])


class Hostile(ReportTest):
    @classmethod
    def setUpClass(cls):
        cls.make("hostile", *pcs.hostile(Folder.path))

    def test_shows_every_name_as_text(self):
        shown = [name.replace("\u2028", "\u2424").replace("\u2029", "\u2424") for name in pcs.NAMES]
        self.assertEqual(self.games(), [f"{name} {kind}" for name in shown for kind in ("found", "not found")])
        self.assertLessEqual(set(pcs.SHOWN_ODD_NAMES), set(self.browser.texts(f"{OTHERS} th")))
        self.assertEqual(self.browser.driver.title, "Games on this PC: 10 of 20 found")
        self.assertEqual(self.browser.run("return [...document.scripts].map(script => script.type)"),
                         ["application/json", ""])
        self.assertEqual(self.browser.texts("img, main style, iframe, object, [onerror], [style]"), [])
        self.expect_to_be_alone()

    def test_says_in_every_place_that_a_name_is_in_what_it_is(self):
        heading = self.browser.texts(f"{GAMES} details h3")[0]
        self.assertEqual(heading, f"1. uninstall: displayName \"{pcs.NAMES[0]}\", executables [\"none.exe\"], matchMode 0")
        isolated = self.browser.run("return [...document.querySelectorAll('bdi')]"
                                    ".every(name => getComputedStyle(name).unicodeBidi === 'isolate')")
        self.assertTrue(isolated)

    def test_finds_and_sorts_them(self):
        self.type("</script>")
        self.assertEqual(self.games(), [f"{pcs.NAMES[0]} {kind}" for kind in ("found", "not found")])
        self.type("llllllllll")
        self.assertEqual(len(self.games()), 2)
        self.type("")
        self.click_heading("games-table", "Game")
        self.assertEqual(len(self.games()), 20)
        self.assertEqual(self.browser.driver.title, "Games on this PC: 10 of 20 found")
        self.expect_to_be_alone()

    def test_fits_the_window(self):
        for width in (360, 1280):
            self.browser.show_as(width=width)
            self.browser.run("document.querySelectorAll('details').forEach(details => details.open = true)")
            self.expect_no_wider_than_the_window()
            tallest = self.browser.run("return Math.max(...[...document.querySelectorAll('tbody th, .path')]"
                                       ".map(cell => cell.offsetHeight))")
            self.assertLess(tallest, 400)

    def test_is_replayed(self):
        self.assertEqual(answers(self.page, self.catalogue), answers(self.pc, self.catalogue))


class Large(ReportTest):
    @classmethod
    def setUpClass(cls):
        cls.make("large", *pcs.large(Folder.path))

    def test_answers_a_key_press(self):
        self.assertEqual(len(self.browser.texts(GAMES)), 5_000)
        names = [game["name"].lower() for game in json.loads(self.catalogue.read_text())["games"]]
        expected = sum("nacht" in name and "turm" in name and "4" in name for name in names)
        # What the page's thread works, however busy the machine is otherwise.
        self.browser.command("Performance.enable", timeDomain="threadTicks")
        times = [self.work_for(key) for key in "nacht turm 4"]
        self.assertEqual(self.browser.texts("#games-count"), [f"{expected} of 5000 shown"])
        times += [self.work_for(Keys.BACKSPACE) for _ in range(12)]
        self.assertEqual(self.browser.texts("#games-count"), [""])
        print(f"\nthe longest of {len(times)} key presses took {max(times):.0f} ms of work")
        self.assertGreater(min(times), 0)
        self.assertLess(max(times), 1_000, "far more than a slow machine needs")

    def worked(self):
        metrics = self.browser.command("Performance.getMetrics")["metrics"]
        return next(1_000 * metric["value"] for metric in metrics if metric["name"] == "TaskDuration")

    def work_for(self, key):
        """How long, in milliseconds, the page works on a key, until the frame is made that shows what it brought."""
        before = self.worked()
        self.browser.driver.find_element(By.ID, "search").send_keys(key)
        self.browser.driver.execute_async_script(
            "const done = arguments[0]; requestAnimationFrame(() => setTimeout(done));")
        return self.worked() - before


if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="luruludri-browser.") as folder:
        Folder.path = Path(folder)
        ReportTest.browser = Browser()
        try:
            result = unittest.main(argv=[sys.argv[0], *sys.argv[3:]], exit=False).result
        finally:
            ReportTest.browser.quit()
    sys.exit(0 if result.wasSuccessful() and result.testsRun > 0 else 1)
