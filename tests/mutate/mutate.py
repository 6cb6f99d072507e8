#!/usr/bin/env python3
"""Mutation testing: mutate.py TREE OUT [COUNT] [SEED]

Makes COUNT small changes to the sources, one at a time and always the same ones for a SEED, in a
copy of TREE below OUT, and asks the tests. A change that no test notices has survived: its line
goes to OUT/survivors.txt. A test program that crashes, hangs or runs out of memory has noticed.
Changes that nobody can notice stand in unseen.txt, and are not made.
"""
import os
import random
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from programs import STAGES, Builder, folder_of
from sites import sites_of

COPIED = ("include", "src", "tests")
# Other systems; numbers that only say which of two right ways is taken; vectors of one processor.
LEFT_OUT = ("_macos.cpp", "limbs/Thresholds.h", "limbs/Ifma.cpp")
MEMORY = 6 << 30
NOBODY = 65534


def copy_tree(tree, copy):
    """Files that are the same keep their times, so that their objects stay current."""
    for folder in COPIED:
        for place, _, names in os.walk(os.path.join(tree, folder)):
            to = os.path.join(copy, os.path.relpath(place, tree))
            os.makedirs(to, exist_ok=True)
            for name in set(os.listdir(to)) - set(os.listdir(place)):
                remove(os.path.join(to, name))
            for name in names:
                source, target = os.path.join(place, name), os.path.join(to, name)
                if not os.path.exists(target) or read(source) != read(target):
                    shutil.copy(source, target)


def remove(path):
    """What is no longer in the tree, a file or a folder."""
    if os.path.isdir(path):
        shutil.rmtree(path)
    else:
        os.remove(path)


def read(path):
    with open(path, "rb") as file:
        return file.read()


def unseen_in(tree):
    """Pairs of a path and a part of "line  ->  changed line"."""
    for line in read(os.path.join(tree, "tests", "mutate", "unseen.txt")).decode().splitlines():
        if line and not line.startswith("#"):
            yield tuple(line.split(": ", 1))


def all_sites(tree):
    unseen = list(unseen_in(tree))
    for place, folders, names in os.walk(os.path.join(tree, "src")):
        folders.sort()
        for name in sorted(names):
            file = os.path.relpath(os.path.join(place, name), tree)
            if name.endswith((".cpp", ".h")) and not file.endswith(LEFT_OUT):
                for site in sites_of(file, read(os.path.join(tree, file)).decode()):
                    change = f"{site.old.strip()}  ->  {site.new.strip()}"
                    if not any(file == path and part in change for path, part in unseen):
                        yield site


class Runner:
    """Runs test programs in a folder for temporary files, without a superuser's rights: a mutant
    must not harm what is not its own."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="qel-mutate-")
        if os.geteuid() == 0:
            os.chown(self.folder, NOBODY, NOBODY)
        self.usual = {}  # seconds of processor time of each stage, unchanged

    def seconds(self, stage):
        return max(5, int(2.5 * self.usual.get(stage, 200)))

    def prepare(self, seconds):
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        if os.geteuid() == 0:
            os.setgroups([])
            os.setgid(NOBODY)
            os.setuid(NOBODY)

    def run(self, program, stage):
        """'' for success; otherwise how it failed."""
        seconds = self.seconds(stage)
        environment = dict(os.environ, TMPDIR=self.folder, HOME=self.folder, TZ=stage[2])
        process = subprocess.Popen(
            [program, f"--gtest_filter={stage[1]}", "--gtest_brief=1", "--gtest_fail_fast"],
            cwd=self.folder, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, start_new_session=True,
            preexec_fn=lambda: self.prepare(seconds))
        try:
            code = process.wait(timeout=6 * seconds + 30)
        except subprocess.TimeoutExpired:
            code = -signal.SIGXCPU
        finally:
            self.end_group(process)
        if code == 0:
            return ""
        if code > 0:
            return "failed"
        return "hung" if -code in (signal.SIGXCPU, signal.SIGKILL) else "crashed"

    @staticmethod
    def end_group(process):
        """What the program started, and the program."""
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()


class Mutation:
    def __init__(self, tree, out, compiler):
        self.tree, self.out = os.path.join(out, "tree"), out
        copy_tree(tree, self.tree)
        objects = os.path.join(out, "objects")
        os.makedirs(objects, exist_ok=True)
        self.builder = Builder(self.tree, objects, compiler)
        self.runner = Runner()

    def program(self, name):
        return os.path.join(self.out, "qel-" + name.replace("/", "-") + "-tests")

    def prepare(self, folders):
        """Builds what the mutants of these folders need, and takes the usual times."""
        stages = [stage for folder in sorted(folders) for stage in STAGES[folder]]
        programs = sorted({stage[0] for stage in stages})
        print(f"mutate: building {', '.join(programs)}", flush=True)
        sources = self.builder.library + [s for p in programs for s in self.builder.parts_of(p)]
        error = self.builder.compile_all(dict.fromkeys(sources))
        for name in programs:
            error = error or self.builder.link(name, self.program(name), {}).stderr
        if error:
            sys.exit("mutate: the tests do not build:\n" + error)
        for stage in dict.fromkeys(stages):
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            fault = self.runner.run(self.program(stage[0]), stage)
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            if fault:
                sys.exit(f"mutate: {stage[0]}, {stage[1]} {fault} without any change")
            self.runner.usual[stage] = after.ru_utime - before.ru_utime \
                + after.ru_stime - before.ru_stime
            print(f"mutate: {stage[0]}, {stage[1]}: {self.runner.usual[stage]:.1f} s", flush=True)

    def verdict(self, site):
        """'survived', how it was caught, or None for what does not compile or changes nothing."""
        path = os.path.join(self.tree, site.file)
        original, times = read(path), os.stat(path)
        lines = original.decode().split("\n")
        lines[site.line] = site.new
        try:
            with open(path, "w") as file:
                file.write("\n".join(lines))
            objects = self.compile(site)
        finally:
            with open(path, "wb") as file:
                file.write(original)
            os.utime(path, ns=(times.st_atime_ns, times.st_mtime_ns))
        if not objects:
            return None
        for stage in STAGES[folder_of(site.file)]:
            program = os.path.join(self.out, "mutant")
            if self.builder.link(stage[0], program, objects).returncode != 0:
                return None
            fault = self.runner.run(program, stage)
            if fault:
                return fault
        return "survived"

    def compile(self, site):
        """The objects that differ, by their sources: tests include headers of the library too."""
        programs = {stage[0] for stage in STAGES[folder_of(site.file)]}
        tests = {part for program in programs for part in self.builder.parts_of(program)}
        objects = {}
        for source in self.builder.library + sorted(tests):
            if not self.builder.depends_on(source, site.file):
                continue
            target = os.path.join(self.out, f"mutant-{len(objects)}.o")
            if self.builder.compile(source, target).returncode != 0:
                return None
            if read(target) != read(self.builder.object_of(source)):
                objects[source] = target
        return objects


def main(tree, out, count="300", seed="1"):
    begin = time.time()
    mutation = Mutation(os.path.abspath(tree), os.path.abspath(out), os.environ.get("CXX", "c++"))
    sites = list(all_sites(mutation.tree))
    random.Random(int(seed)).shuffle(sites)
    print(f"mutate: {len(sites)} possible changes, seed {seed}", flush=True)
    mutation.prepare(STAGES)
    verdicts, survivors = [], []
    list_of_survivors = os.path.join(mutation.out, "survivors.txt")
    open(list_of_survivors, "w").close()
    try:
        for site in sites:
            if len(verdicts) == int(count):
                break
            verdict = mutation.verdict(site)
            if verdict is None:
                continue
            verdicts.append(verdict)
            print(f"{len(verdicts):4} {verdict:9} {site}", flush=True)
            if verdict == "survived":
                survivors.append(str(site))
                with open(list_of_survivors, "a") as file:
                    file.write(f"{site}\n")
    finally:
        shutil.rmtree(mutation.runner.folder, ignore_errors=True)
    caught = len(verdicts) - len(survivors)
    print(f"mutate: {caught} of {len(verdicts)} changes caught, {len(survivors)} survived, "
          f"in {(time.time() - begin) / 60:.0f} minutes; see {list_of_survivors}")


if __name__ == "__main__":
    if not 3 <= len(sys.argv) <= 5:
        sys.exit(__doc__)
    main(*sys.argv[1:])
