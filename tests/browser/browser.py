"""A browser without a display, as Debian has it, that opens reports and says what it made of them."""

import base64
import json
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service


class Browser:
    """Chromium. One a test run, as it takes a second to start."""

    def __init__(self):
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        # No sandbox: root may not have one, and the pages are the tests' own. No /dev/shm, which is small in containers.
        for argument in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage", "--disable-gpu"):
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)

    def quit(self):
        self.driver.quit()

    def command(self, name, **arguments):
        """A command of the browser's own protocol."""
        return self.driver.execute_cdp_cmd(name, arguments)

    def show_as(self, width=1280, height=900, scheme="light", media="screen"):
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)
        self.command("Emulation.setEmulatedMedia", media=media,
                     features=[{"name": "prefers-color-scheme", "value": scheme}])

    def allow_scripts(self, allowed):
        self.command("Emulation.setScriptExecutionDisabled", value=not allowed)

    def open(self, file):
        self.messages()
        self.requests()
        self.driver.get(Path(file).as_uri())

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def texts(self, selector):
        """What the elements say, those that are not shown included."""
        return self.run("return [...document.querySelectorAll(arguments[0])].map(e => e.textContent)", selector)

    def shown(self, selector):
        """The same of those that are shown."""
        return self.run("return [...document.querySelectorAll(arguments[0])]"
                        ".filter(e => e.checkVisibility()).map(e => e.textContent)", selector)

    def messages(self):
        """What the console was told since the last call."""
        return [entry["message"] for entry in self.driver.get_log("browser")]

    def requests(self):
        """The addresses that were asked for since the last call."""
        events = [json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance")]
        return [event["params"]["request"]["url"] for event in events if event["method"] == "Network.requestWillBeSent"]

    def screenshot(self, file):
        Path(file).write_bytes(base64.b64decode(self.command("Page.captureScreenshot")["data"]))
