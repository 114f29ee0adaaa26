"""Headless Chromium, driven through the WebDriver protocol of chromedriver."""

import base64
import json
import re
import shutil
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

PATIENCE = 120
ELEMENT = "element-6066-11e4-a52e-4f735466cecf"  # the name of element references in the protocol

ARGUMENTS = [
    "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--disable-dev-shm-usage",
    "--no-first-run", "--disable-background-networking", "--disable-component-update",
    "--disable-sync",
]


class BrowserError(Exception):
    """What the browser refused, in its own words."""


class Browser:
    """One browser with one window. Close it at the end, whatever happens."""

    def __init__(self):
        self.profile = tempfile.mkdtemp(prefix="quorvane-browser-")
        self.driver = subprocess.Popen(
            ["chromedriver", "--port=0"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True)
        self.opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        self.session = None
        try:
            self.address = f"http://127.0.0.1:{self._read_port()}"
            self.session = self._open_session()
        except BaseException:
            self.close()
            raise

    def close(self):
        if self.session:
            self._send("DELETE", f"/session/{self.session}")
        self.driver.terminate()
        self.driver.wait(PATIENCE)
        self.driver.stdout.close()
        shutil.rmtree(self.profile, ignore_errors=True)

    def open(self, address):
        self._do("POST", "/url", {"url": address})

    def resize(self, width, height):
        self._do("POST", "/window/rect", {"width": width, "height": height})

    def run(self, script, *arguments):
        """What the script, the body of a function, returns."""
        return self._do("POST", "/execute/sync", {"script": script, "args": list(arguments)})

    def find(self, selector):
        return self._do("POST", "/element", {"using": "css selector", "value": selector})[ELEMENT]

    def click(self, selector):
        self._do("POST", f"/element/{self.find(selector)}/click", {})

    def type(self, selector, text):
        self._do("POST", f"/element/{self.find(selector)}/value", {"text": text})

    def press(self, *keys):
        """Presses keys one after the other, wherever the focus is."""
        actions = [{"type": kind, "value": key} for key in keys for kind in ("keyDown", "keyUp")]
        self._do("POST", "/actions",
                 {"actions": [{"type": "key", "id": "keyboard", "actions": actions}]})

    def wait_until(self, script, *arguments):
        """Waits until the script returns something true, and returns that."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            result = self.run(script, *arguments)
            if result:
                return result
            time.sleep(0.05)
        raise BrowserError(f"never true: {script} {arguments}")

    def console(self):
        """The messages that the page left in the console since it was asked last."""
        entries = self._do("POST", "/se/log", {"type": "browser"})
        return [entry["message"] for entry in entries]

    def picture(self):
        return base64.b64decode(self._do("GET", "/screenshot"))

    def print(self):
        """The page as PDF on A4 paper, with its own margins."""
        return base64.b64decode(self._do("POST", "/print", {
            "page": {"width": 21.0, "height": 29.7}, "background": False}))

    def _read_port(self):
        for line in self.driver.stdout:
            started = re.search(r"started successfully on port (\d+)", line)
            if started:
                return int(started.group(1))
        raise BrowserError("chromedriver did not start")

    def _open_session(self):
        options = {"args": [*ARGUMENTS, f"--user-data-dir={self.profile}"]}
        capabilities = {"browserName": "chrome", "goog:chromeOptions": options,
                        "goog:loggingPrefs": {"browser": "ALL"}}
        return self._send("POST", "/session",
                          {"capabilities": {"alwaysMatch": capabilities}})["sessionId"]

    def _do(self, method, path, body=None):
        return self._send(method, f"/session/{self.session}{path}", body)

    def _send(self, method, path, body=None):
        request = urllib.request.Request(
            self.address + path, method=method,
            data=None if body is None else json.dumps(body).encode(),
            headers={"Content-Type": "application/json; charset=utf-8"})
        try:
            with self.opener.open(request, timeout=PATIENCE) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as refusal:
            raise BrowserError(refusal.read().decode(errors="replace")) from refusal
