#!/usr/bin/python3
"""The pages of zupackage site as people meet them, in a browser.

usage: tests/site/pages_test.py TOOL AXE    (the program; the script of axe-core)
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.select import Select

import browser as headless
import hostile_packages

ROOT = pathlib.Path(__file__).resolve().parents[2]
DESKTOP, PHONE = (1200, 800), (390, 844)


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        folder = pathlib.Path(cls.temporary.name)
        hostile_packages.write(folder / "hostile")
        blanks = folder / "blanks"
        blanks.mkdir()
        (blanks / "manifest.xml").write_text("<package uuid='org.blanks'><requirements>"
                                             "<robotRequirement model='Brindle  7 '/></requirements></package>")
        cls.blanks = folder / "blanks site"
        examples = str(ROOT / "examples" / "packages")
        cls.site, cls.single = folder / "site", folder / "single.html"
        cls.hostile, cls.hostile_single = folder / "hostile site", folder / "hostile.html"
        for source, arguments, code in ((examples, ["-o", cls.site], 0), (examples, ["--single", cls.single], 0),
                                        (blanks, ["-o", cls.blanks], 0), (folder / "hostile", ["-o", cls.hostile], 3),
                                        (folder / "hostile", ["--single", cls.hostile_single], 3)):
            made = subprocess.run([TOOL, "site", source, *arguments], stderr=subprocess.DEVNULL)
            assert made.returncode == code, made
        cls.browser = headless.open_browser()

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        cls.temporary.cleanup()

    def setUp(self):
        headless.set_view(self.browser, *DESKTOP, "light")

    def tearDown(self):
        self.assertEqual(self.browser.get_log("browser"), [], "the console has something to say")

    def show(self, path):
        headless.show(self.browser, path)

    def story(self):
        self.show(self.site / "packages" / "org.example.storyteller.html")

    def run_script(self, script, *arguments):
        return self.browser.execute_script(script, *arguments)

    def shown_packages(self):
        return [link.text for link in self.browser.find_elements(By.CSS_SELECTOR, ".card:not([hidden]) h2 a")]

    def filter(self, name, value):
        Select(self.browser.find_element(By.ID, f"filter-{name}")).select_by_visible_text(value)

    def count(self):
        return self.browser.find_element(By.CSS_SELECTOR, "[role=status]").text

    def check_accessibility(self, what):
        self.run_script(AXE.read_text(encoding="utf-8"))
        result = self.browser.execute_async_script(
            "const done = arguments[arguments.length - 1];"
            "axe.run({resultTypes: ['violations'], preload: false}).then((result) => done(result.violations.map(({id, nodes}) =>"
            "  id + ': ' + nodes.slice(0, 3).map((node) => node.html + ' ' + node.failureSummary).join(' | '))));")
        self.assertEqual(result, [], what)

    def test_search_finds_names_of_every_language_as_one_types(self):
        self.show(self.site / "index.html")
        self.assertEqual(self.shown_packages(), ["Fleet Monitor", "German speech language", "Story Time"])
        self.assertEqual(self.count(), "3 of 3 packages")
        search = self.browser.find_element(By.ID, "search")
        search.send_keys("GESCHICHTEN")
        self.assertEqual(self.shown_packages(), ["Story Time"])
        self.assertEqual(self.count(), "1 of 3 packages")
        search.send_keys(" nothing like that")
        self.assertEqual(self.shown_packages(), [])
        self.assertEqual(self.count(), "0 of 3 packages")

    def test_filters_narrow_the_list_together(self):
        self.show(self.site / "index.html")
        self.filter("language", "de")
        self.assertEqual(self.shown_packages(), ["Fleet Monitor", "German speech language"])
        self.filter("robot", "pellin")
        self.assertEqual(self.shown_packages(), ["Fleet Monitor"])
        self.filter("permission", "canSitDown")
        self.assertEqual(self.shown_packages(), [])
        self.browser.find_element(By.CSS_SELECTOR, "button[type=reset]").click()
        self.browser.implicitly_wait(0)
        self.assertEqual(self.run_script("return new Promise((done) => setTimeout(() => done("
                                         "document.querySelectorAll('.card:not([hidden])').length)))"), 3)

    def test_filters_take_values_with_blanks_as_they_stand(self):
        self.show(self.blanks / "index.html")
        self.filter("robot", "Brindle 7")
        self.assertEqual(self.shown_packages(), ["org.blanks"])

    def test_cards_lead_to_the_pages_of_packages(self):
        self.show(self.site / "index.html")
        self.browser.find_element(By.LINK_TEXT, "Story Time").click()
        self.assertEqual(self.browser.find_element(By.TAG_NAME, "h1").text, "Story Time")
        self.browser.find_element(By.LINK_TEXT, "Packages").click()
        self.assertEqual(self.browser.title, "Packages")

    def test_matrix_tells_what_is_there_and_what_is_missing(self):
        self.story()
        cells = self.run_script("""
            const languages = [...document.querySelectorAll('.matrix thead th')].slice(1).map((head) => head.textContent);
            const cells = {};
            for (const body of document.querySelectorAll('.matrix tbody')) {
              const part = body.querySelector('.part').textContent;
              for (const row of body.querySelectorAll('tr:not(.part)'))
                [...row.querySelectorAll('td')].forEach((cell, i) => {
                  cells[[part, row.querySelector('th').textContent, languages[i]]] = [cell.className, cell.textContent];
                });
            }
            return cells;""")
        self.assertEqual(cells["The package,names,fr_CA"], ["some", "1"])
        self.assertEqual(cells["behavior behaviors/tell-story,tags,en"], ["more", "3"])
        self.assertEqual(cells["behavior behaviors/daydream,tags,ja"], ["missing", "–missing"])
        self.assertEqual(cells["behavior behaviors/bedtime,tags,de"], ["stray", "1"])
        self.assertEqual(cells["dialog story_chat,topics,de"], ["", ""])

    def test_findings_quote_their_lines(self):
        self.story()
        quoted = self.browser.find_elements(By.CSS_SELECTOR, ".finding.warning pre")
        self.assertIn('<tag lang="de">Schlafenszeit</tag>', [line.text.strip() for line in quoted])
        self.assertIn("de", [mark.text for mark in self.browser.find_elements(By.CSS_SELECTOR, ".finding mark")])

    def test_texts_of_strangers_are_text(self):
        pages = [self.hostile_single, self.hostile / "index.html", *sorted((self.hostile / "packages").iterdir())]
        self.assertEqual(len(pages), len(hostile_packages.ATTACKS) + 3)
        for page in pages:
            with self.subTest(page=page.name):
                self.show(page)
                self.assertIsNone(self.run_script("return window.attacked ?? null"))
                theirs = "script, img, iframe, svg, style, base, b, form:not(.filters), button:not([type=reset]), " \
                    "[onload], [onerror], [onfocus], [onmouseover], [autofocus], [href^=javascript], [href^=http]"
                self.assertEqual(self.run_script(
                    "return [...document.querySelectorAll('main *')].filter((e) => e.matches(arguments[0]))"
                    ".map((e) => e.outerHTML)", theirs), [])
        self.show(self.hostile_single)
        text = self.run_script("return document.body.textContent")
        for attack in hostile_packages.ATTACKS:
            self.assertIn(attack, text)

    def test_pages_are_whole_without_scripts(self):
        self.browser.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": True})
        try:
            self.show(self.site / "index.html")
            self.assertEqual(len(self.shown_packages()), 3)
            self.assertFalse(self.browser.find_element(By.CSS_SELECTOR, ".filters").is_displayed())
        finally:
            self.browser.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": False})

    def test_one_file_is_a_whole_site(self):
        self.show(self.single)
        self.browser.find_element(By.ID, "search").send_keys("heartbeat")
        self.assertEqual(self.shown_packages(), ["Fleet Monitor"])
        self.browser.find_element(By.LINK_TEXT, "Fleet Monitor").click()
        place = self.run_script("return document.querySelector(location.hash + ' h2').getBoundingClientRect().top")
        self.assertTrue(0 <= place < DESKTOP[1], place)

    def test_the_keyboard_reaches_the_content_first(self):
        self.story()
        self.browser.find_element(By.TAG_NAME, "body").send_keys(Keys.TAB)
        self.assertEqual(self.run_script("return document.activeElement.className"), "skip")
        self.browser.switch_to.active_element.send_keys(Keys.ENTER)
        self.assertEqual(self.run_script("return document.activeElement.id"), "content")

    def test_pages_follow_dark_and_light(self):
        self.story()
        colours = set()
        for scheme in ("light", "dark"):
            headless.set_view(self.browser, *DESKTOP, scheme)
            colours.add(self.run_script("return getComputedStyle(document.body).backgroundColor"))
        self.assertEqual(colours, {"rgb(246, 247, 249)", "rgb(18, 21, 27)"})

    def test_pages_fit_a_phone(self):
        headless.set_view(self.browser, *PHONE, "light")
        for page in (self.site / "index.html", self.site / "packages" / "org.example.storyteller.html", self.single):
            self.show(page)
            self.assertLessEqual(self.run_script("return document.documentElement.scrollWidth"), PHONE[0], page)

    def test_nothing_comes_from_elsewhere(self):
        for page in (self.site / "index.html", self.hostile / "index.html", self.hostile_single):
            self.show(page)
            loaded = self.run_script("return performance.getEntriesByType('resource').map((entry) => entry.name)")
            self.assertEqual([name for name in loaded if not name.startswith(("file:", "data:"))], [])

    def test_no_page_is_hard_to_use(self):
        examples = [self.site / "index.html", self.site / "packages" / "org.example.storyteller.html"]
        others = [self.site / "packages" / "org.example.fleetmonitor.html", self.hostile / "index.html",
                  min((self.hostile / "packages").iterdir())]
        for view, scheme, pages in ((DESKTOP, "light", examples + others), (DESKTOP, "dark", examples),
                                    (PHONE, "light", examples)):
            headless.set_view(self.browser, *view, scheme)
            for page in pages:
                self.show(page)
                self.run_script("document.querySelectorAll('details').forEach((one) => { one.open = true; })")
                self.check_accessibility((page.name, view, scheme))

    def test_one_file_is_not_hard_to_use(self):
        self.show(self.single)
        self.check_accessibility("single file")


if __name__ == "__main__":
    TOOL, AXE = sys.argv[1], pathlib.Path(sys.argv[2])
    unittest.main(argv=sys.argv[:1], verbosity=2)
