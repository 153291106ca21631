"""Waiting for a condition instead of for a time."""

import time

POLL_SECONDS = 0.02


class TimedOut(AssertionError):
    """What was waited for did not happen."""


def wait_until(condition, seconds, what):
    """Returns the condition's first true value; after `seconds` without one, fails and says what was missing.

    `what` may be a function, for a text that tells how things stood at the end.
    """
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise TimedOut(f"not within {seconds} s: {what() if callable(what) else what}")
        time.sleep(POLL_SECONDS)


def stays(condition, seconds, what):
    """Watches for so long that a condition holds, for what must not happen; fails as soon as it does not."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise AssertionError(f"not for {seconds} s: {what() if callable(what) else what}")
        time.sleep(POLL_SECONDS)
