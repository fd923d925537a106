"""A headless Chromium that looks at pages on the disk."""
import pathlib

from selenium import webdriver
from selenium.webdriver.chrome.service import Service


def open_browser():
    options = webdriver.ChromeOptions()
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--force-prefers-reduced-motion"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(options=options, service=Service("/usr/bin/chromedriver"))


def set_view(browser, width, height, scheme):
    """The size of the window in pixels, and "light" or "dark"."""
    browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                            {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": width < 600})
    browser.execute_cdp_cmd("Emulation.setEmulatedMedia",
                            {"features": [{"name": "prefers-color-scheme", "value": scheme}]})


def show(browser, path):
    # By way of another page: the same address with a part behind "#" would not load anew.
    browser.get("about:blank")
    browser.get(pathlib.Path(path).resolve().as_uri())
