"""Waiting for what another process is about to do."""

import time


def wait_until(condition, seconds=15.0, what="a condition"):
    """Polls until condition() is true and returns its value; fails after the given seconds."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"gave up after {seconds} s waiting for {what}")
        time.sleep(0.02)
