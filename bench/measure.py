"""Runs a program and tells what it took."""

import os
import platform
import statistics
import subprocess
from pathlib import Path

timer = None


class Run:
    """One finished process: wall and processor seconds, peak memory in MiB, exit status."""

    def __init__(self, wall, cpu, memory, status):
        self.wall = float(wall)
        self.cpu = float(cpu)
        self.memory = int(memory) / 1024
        self.status = int(status)


def prepare(folder):
    """Compiles the program that does the timing into `folder`."""
    global timer
    timer = folder / "timed"
    source = Path(__file__).resolve().parent / "timed.cpp"
    subprocess.run(["g++", "-O2", "-std=c++20", source, "-o", timer], check=True)


def run(command, source=None, environment=None):
    """Runs `command` with the file `source` as input and its output thrown away."""
    result = timer.with_suffix(".result")
    with open(source or os.devnull, "rb") as stdin:
        subprocess.run([timer, result, *map(str, command)], stdin=stdin, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, env={**os.environ, **(environment or {})}, check=True)
    return Run(*result.read_text().split())


def in_turns(jobs, times, allowed=(0, 1)):
    """`times` runs of each job, a command and the options of run(). They take turns: the machine may be faster now
    and slower then."""
    runs = [[] for _ in jobs]
    for _ in range(times):
        for (command, options), of_job in zip(jobs, runs):
            one = run(command, **options)
            if one.status not in allowed:
                raise SystemExit(f"exit status {one.status}: {' '.join(map(str, command))}")
            of_job.append(one)
    return runs


def best(command, times=5, allowed=(0, 1), **options):
    """The run with the least processor time of several; ends the script when one fails."""
    return best_of(in_turns([(command, options)], times, allowed)[0])


def best_of(runs):
    return min(runs, key=lambda one: one.cpu)


def medians(commands, times, **options):
    """Medians of wall and processor time, in seconds, of many short runs of each command. The first, cold run of
    each is dropped."""
    return [(statistics.median(one.wall for one in runs[1:]), statistics.median(one.cpu for one in runs[1:]))
            for runs in in_turns([(command, options) for command in commands], times + 1)]


def machine():
    """Processor, cores, memory and system in one line."""
    processor = "unknown processor"
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        for line in file:
            if line.startswith("model name"):
                processor = line.split(":", 1)[1].strip()
                break
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    system = platform.freedesktop_os_release().get("PRETTY_NAME", platform.system())
    return f"{processor}, {os.cpu_count()} cores, {memory:.0f} GiB, {system}, Linux {platform.release()}"


def version_of(package):
    found = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package], capture_output=True, text=True)
    return found.stdout or "not installed"
