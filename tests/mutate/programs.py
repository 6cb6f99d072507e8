"""The test programs of mutation testing: how they are built, and which of their tests are asked
first. Test programs and library are compiled once; a mutant compiles what its change touches."""
import os
import re
import subprocess
from concurrent.futures import ThreadPoolExecutor

FLAGS = ["-std=c++20", "-O1", "-DNDEBUG", "-w", "-ffp-contract=off", "-Iinclude", "-Isrc", "-Itests"]
WRAPPED = ["-Wl,--wrap=malloc,--wrap=calloc,--wrap=realloc"]

# What a program needs beside the sources of its folder, and the beginning of what of the library it
# replaces.
PROGRAMS = {
    "text": {},
    "bigint": {"more": ["tests/model"]},
    "crypto": {"more": ["tests/model"]},
    "time": {},
    "time/clock": {"replaces": "src/time/SystemClocks"},
    "time/system": {},
    "fs": {},
    "faults": {"more": ["tests/fs/TemporaryFolder.cpp"], "link": WRAPPED},
}

WIDE_BIGINT = "Widest*:MillionBits*:Storage.TheLargestPosition*"
LONG_BIGINT = f"*Differential*:*SmallWorld*:{WIDE_BIGINT}"
FEW_SHARDS = "*Differential*/0:*Differential*/1:*Differential*/2"
# Its last words are those of one compiler at one level of optimisation.
LAST_WORDS = "ReplacingDeathTest*"
LONG_CRYPTO = "*LongSearches*:*PlainVerdicts*:*ManyKeys*:WidestKeys*"

# For each folder of sources the stages: program, filter, time zone. The first that fails has
# caught the mutant.
STAGES = {
    "text": [("text", f"*-{LAST_WORDS}", "UTC")],
    "bigint": [("bigint", f"*-{LONG_BIGINT}", "UTC"),
               ("bigint", f"{FEW_SHARDS}:*SmallWorld*", "UTC"),
               ("crypto", f"*-{LONG_CRYPTO}", "UTC"),
               ("bigint", WIDE_BIGINT, "UTC")],
    "crypto": [("crypto", f"*-{LONG_CRYPTO}", "UTC"),
               ("crypto", "*PlainVerdicts*/0:*ManyKeys*/0", "UTC")],
    "time": [("time", "*", "Europe/Paris"), ("time", "*", "Africa/Monrovia"),
             ("time/clock", "*", "UTC"), ("time/system", "*", "UTC")],
    "fs": [("fs", "*", "UTC"), ("faults", "SystemCalls*:Writing*:OutOfMemoryWithFiles*", "UTC")],
}


def sources_below(tree, folder, deep=False):
    if folder.endswith(".cpp"):
        return [folder]
    found = []
    for place, folders, names in os.walk(os.path.join(tree, folder)):
        folders[:] = sorted(folders) if deep else []
        found += [os.path.relpath(os.path.join(place, n), tree) for n in sorted(names)
                  if n.endswith(".cpp")]
    return found


class Builder:
    """Objects and programs of one tree. A path of a source names its object too."""

    def __init__(self, tree, out, compiler):
        self.tree, self.out, self.compiler = tree, out, compiler
        self.library = sources_below(tree, "src", deep=True)

    def object_of(self, source):
        return os.path.join(self.out, source.replace("/", "-") + ".o")

    def parts_of(self, program):
        parts = sources_below(self.tree, f"tests/{program}")
        for folder in PROGRAMS[program].get("more", []):
            parts += sources_below(self.tree, folder)
        return parts

    def dependencies_of(self, source):
        try:
            with open(self.object_of(source)[:-2] + ".d") as file:
                words = file.read().replace("\\\n", " ").split()
        except FileNotFoundError:
            return None
        return [os.path.normpath(w) for w in words[1:] if not w.startswith("/")]

    def depends_on(self, source, file):
        return file == source or file in (self.dependencies_of(source) or [])

    def is_current(self, source):
        dependencies = self.dependencies_of(source)
        if dependencies is None or not os.path.exists(self.object_of(source)):
            return False
        made = os.path.getmtime(self.object_of(source))
        try:
            return all(os.path.getmtime(os.path.join(self.tree, d)) < made for d in dependencies)
        except FileNotFoundError:
            return False

    def compile(self, source, target=None):
        target = target or self.object_of(source)
        data = f'-DQEL_TEST_DATA="{self.tree}/tests/data"'
        command = [self.compiler, *FLAGS, data, "-MMD", "-c", source, "-o", target]
        return subprocess.run(command, cwd=self.tree, stdout=subprocess.DEVNULL,
                              stderr=subprocess.PIPE, text=True)

    def compile_all(self, sources):
        """What is out of date, all cores at once; the first error text, or nothing."""
        stale = [s for s in sources if not self.is_current(s)]
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            for result in pool.map(self.compile, stale):
                if result.returncode != 0:
                    return result.stderr
        return ""

    def link(self, program, target, mutated):
        """`mutated` maps sources to objects that stand for theirs."""
        left_out = PROGRAMS[program].get("replaces", "none")
        sources = [s for s in self.library if not s.startswith(left_out)] + self.parts_of(program)
        objects = [mutated.get(s, self.object_of(s)) for s in sources]
        command = [self.compiler, *objects, *PROGRAMS[program].get("link", []), "-lgtest_main",
                   "-lgtest", "-lpthread", "-ldl", "-o", target]
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)


def folder_of(source):
    return re.match(r"src/(\w+)/", source).group(1)
