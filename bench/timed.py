# SPDX-License-Identifier: GPL-3.0-or-later
"""What a command costs, for the benchmarks."""
import os
import subprocess
import sys
import time
from typing import NamedTuple


class Cost(NamedTuple):
    wall: float  # seconds
    processor: float  # seconds, of all its threads
    peak: float  # MB of memory, as the system tells it
    told: str  # what it printed


def run(command, output=None, statuses=(0,), env=None):
    """Runs a command, which must end with one of the statuses. What it prints goes to `output` if that is given."""
    begin = time.perf_counter()
    child = subprocess.Popen(command, stdout=output or subprocess.PIPE, text=True, env=env)
    told = "" if output else child.stdout.read()
    _, status, usage = os.wait4(child.pid, 0)
    wall = time.perf_counter() - begin
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode not in statuses:
        sys.exit(f"{command[0]} ended with {child.returncode}: {told}")
    return Cost(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, told)
