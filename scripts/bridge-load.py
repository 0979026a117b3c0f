#!/usr/bin/env python3
"""Measures the bridge with many simulated projectors, Debian's message broker and metrics store, one process of each,
and prints a table. Usage: scripts/bridge-load.py FOLDER [PROJECTORS]

FOLDER holds the programs of an optimised build."""

import re
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time
import urllib.request

programs = sys.argv[1]
count = int(sys.argv[2]) if len(sys.argv) > 2 else 10_000
folder = tempfile.mkdtemp()
started = []


def start(*arguments, **options):
    process = subprocess.Popen(arguments, **options)
    started.append(process)
    return process


def free_port():
    with socket.socket() as one:
        one.bind(("127.0.0.1", 0))
        return one.getsockname()[1]


class Subscriber:
    """Remembers topics, when the last new one came, when answers came, and who answers."""

    def __init__(self, *topics):
        self.topics, self.last_new, self.answers, self.answering = set(), 0.0, [], set()
        arguments = [argument for topic in topics for argument in ("-t", topic)]
        self.process = start("mosquitto_sub", "-p", str(broker), "-q", "1", "-F", "%t %p", *arguments,
                             stdout=subprocess.PIPE, text=True)
        threading.Thread(target=self.read, daemon=True).start()

    def read(self):
        for line in self.process.stdout:
            topic = line.split(" ", 1)[0]
            if topic not in self.topics:
                self.topics.add(topic)
                self.last_new = time.monotonic()
            if topic.endswith("/answer"):
                self.answers.append(time.monotonic())
            if '"reachability":"answers"' in line:
                self.answering.add(topic)


def wait(is_so, what, most=180):
    end = time.monotonic() + most
    while not is_so():
        if time.monotonic() > end:
            sys.exit(f"{what}: not after {most} s")
        time.sleep(0.02)


def metrics():
    with urllib.request.urlopen(f"http://127.0.0.1:{http}/metrics") as answer:
        return answer.read().decode()


def metric(text, name):
    found = re.search(rf"^{re.escape(name)} (\S+)$", text, re.M)
    return float(found[1]) if found else 0.0


try:
    broker, http = free_port(), free_port()
    with open(f"{folder}/broker", "w") as file:
        file.write(f"listener {broker} 127.0.0.1\nallow_anonymous true\nmax_queued_messages 0\n")
    start("/usr/sbin/mosquitto", "-c", f"{folder}/broker", stderr=subprocess.DEVNULL)
    log = open(f"{folder}/simulator", "w+")
    start(f"{programs}/advanced-control-simulator", "--fleet", str(count), "--fault", "silent 5%",
          "--write-profiles", f"{folder}/profiles", stdout=log)
    wait(lambda: "ready" in open(f"{folder}/simulator").read(), "the simulator")
    states = Subscriber("projectors/+/state")
    configs = Subscriber("homeassistant/device/+/config")
    answers = Subscriber("projectors/+/answer")
    time.sleep(1)
    with open(f"{folder}/prometheus.yml", "w") as file:
        file.write("global: {scrape_interval: 15s}\nscrape_configs:\n  - job_name: projectors\n"
                   f"    static_configs: [{{targets: ['127.0.0.1:{http}']}}]\n")
    start("prometheus", f"--config.file={folder}/prometheus.yml", f"--storage.tsdb.path={folder}/store",
          f"--web.listen-address=127.0.0.1:{free_port()}", stderr=subprocess.DEVNULL)
    begin = time.monotonic()
    bridge = start(f"{programs}/advanced-control-bridge", "--profiles", f"{folder}/profiles", "--broker",
                   f"127.0.0.1:{broker}", "--listen", f"127.0.0.1:{http}", "--allow-commands", "power",
                   stderr=subprocess.DEVNULL)
    wait(lambda: len(states.topics) == count and len(configs.topics) == count, "all messages")
    wait(lambda: sum(metric(metrics(), f'projector_bridge_visits_total{{result="{result}"}}')
                     for result in ("answered", "unanswered")) >= count, "the first sweep")
    swept = time.monotonic() - begin
    time.sleep(1)
    fetched = time.monotonic()
    text = metrics()
    fetched = time.monotonic() - fetched
    series = sum(1 for line in text.splitlines() if not line.startswith("#"))

    busy = metric(metrics(), "process_cpu_seconds_total")
    time.sleep(66)  # a sweep
    busy = (metric(metrics(), "process_cpu_seconds_total") - busy) / 66

    times = []
    for topic in sorted(states.answering)[:20]:
        before = len(answers.answers)
        sent = time.monotonic()
        subprocess.run(["mosquitto_pub", "-p", str(broker), "-t", topic.replace("/state", "/set/power"),
                        "-m", "on"], check=True)
        wait(lambda: len(answers.answers) > before, "an answer")
        times.append(answers.answers[-1] - sent)
    text = metrics()
    print(f"| projectors | {count:,} |")
    print(f"| first sweep, with 5 % silent | {swept:.1f} s |")
    print(f"| last discovery message after | {configs.last_new - begin:.1f} s |")
    sent = metric(text, 'projector_bridge_messages_total{kind="state"}')
    print(f"| state messages | {sent:,.0f} |")
    print(f"| series, fetched in | {series:,}, {fetched:.2f} s, {len(text) / 1e6:.1f} MB |")
    print(f"| memory of the bridge | {metric(text, 'process_resident_memory_bytes') / 1e6:.0f} MB |")
    print(f"| processor, of one | {busy * 100:.1f} % |")
    print(f"| command to answer, median and longest of 20 | {sorted(times)[10] * 1000:.0f} ms, {max(times) * 1000:.0f} ms |")
finally:
    for process in reversed(started):
        process.terminate()
    for process in started:
        process.wait()
    shutil.rmtree(folder)
