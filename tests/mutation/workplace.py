"""A copy of the tree with a build folder and a test bed of its own, where changes are tried."""
import hashlib
import os
import re
import shutil
import signal
import subprocess
import time
from enum import Enum
from pathlib import Path

PRESET = 'ci'
TARGETS = ['unit_tests', 'reading_memory_tests']
UNIT_TESTS = f'build/{PRESET}/tests/unit/unit_tests.exe'
# What the label "unit" runs, in as few programs as possible.
TESTS = [
    ['wine', UNIT_TESTS],
    ['wine', f'build/{PRESET}/tests/unit/reading_memory_tests.exe'],
    ['scripts/in-cp1252.sh', UNIT_TESTS, '--gtest_filter=CodePage*'],
]
FLAGS = ['--gtest_fail_fast', '--gtest_brief=1']
FAILED_TEST = re.compile(r'^\[  FAILED  \] ([\w/]+\.[\w/]+)', re.MULTILINE)
TEST_FAILED = 1  # the exit code; others are those of a crash
SHORTEST_LIMIT = 20  # seconds
GRACE = 10  # seconds for a command that is asked to end


class Failure(Exception):
    """The reason why nothing can be tried."""


class Outcome(Enum):
    KILLED = 'killed'
    TIMED_OUT = 'ran out of time (killed)'
    SURVIVED = 'survived'
    NOT_BUILT = 'did not build'
    SAME_CODE = 'same object code'


class Bed:
    """Started by scripts/bed.sh, which ends it when its input ends, however this program ends."""

    HOLD = 'env -0 >"$0" && echo ready && exec cat >/dev/null'

    def __init__(self, root, folder):
        folder.mkdir(parents=True, exist_ok=True)
        variables = folder / 'environment'
        self.process = subprocess.Popen(
            [root / 'scripts/bed.sh', 'exec', '--cp1252', '--', 'sh', '-c', self.HOLD, variables],
            env={**os.environ, 'VELMORA_BED': str(folder)}, start_new_session=True,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        # Another line may say that it waits for the bed.
        if not any(line == b'ready\n' for line in self.process.stdout):
            self.close()
            raise Failure(f'The test bed in {folder} does not start.')
        entries = os.fsdecode(variables.read_bytes()).split('\0')
        self.environment = dict(entry.split('=', 1) for entry in entries if '=' in entry)

    def close(self):
        self.process.stdin.close()
        self.process.wait()


class Workplace:
    def __init__(self, checkout, folder):
        self.root = folder / 'tree'
        self.bed_folder = folder / 'bed'
        self.log = folder / 'log.txt'  # of the last command
        self.bed = None
        self.process = None  # of the command that runs
        self.limit = None  # seconds
        # So that a compiler cache, when there is one, gives this copy the objects of another one.
        self.environment = {'CCACHE_BASEDIR': str(self.root), **os.environ}
        _copy(checkout, self.root)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._end_command()
        self._end_bed()

    def build_unchanged(self):
        if self._run(['cmake', '--preset', PRESET], self.environment) != 0 or not self._build():
            raise Failure(f'The unit tests do not build without a change: {self.log}')
        self.unchanged = self._object_code()

    def test_unchanged(self):
        """Takes the time, too."""
        began = time.monotonic()
        outcome, test = self._test()
        if outcome is not Outcome.SURVIVED:
            raise Failure(f'The unit tests fail without a change ({test}): {self.log}')
        self.limit = max(SHORTEST_LIMIT, 4 * (time.monotonic() - began))

    def outcome_of(self, change):
        """The outcome, and the name of the test that failed."""
        file = self.root / change.file
        source = file.read_bytes()
        file.write_bytes(change.applied(source.decode()).encode())
        try:
            if not self._build():
                return Outcome.NOT_BUILT, ''
            if self._object_code() == self.unchanged:
                return Outcome.SAME_CODE, ''
            return self._test(change.file)
        finally:
            file.write_bytes(source)

    def _run(self, command, environment, limit=None):
        """The exit code; None when it did not end in time."""
        # Not a pipe, which a process that is left behind would keep open.
        with open(self.log, 'wb') as log:
            self.process = subprocess.Popen(
                command, cwd=self.root, env=environment, stdin=subprocess.DEVNULL, stdout=log,
                stderr=subprocess.STDOUT, start_new_session=True)
        try:
            return self.process.wait(limit)
        except subprocess.TimeoutExpired:
            return None
        finally:
            self._end_command()

    def _end_command(self):
        """With everything that it started: ninja ends its compilers when it is asked to end."""
        if self.process is None:
            return
        sign, deadline = signal.SIGTERM, time.monotonic() + GRACE
        try:
            while True:
                self.process.poll()
                os.killpg(self.process.pid, sign)
                sign = 0 if time.monotonic() < deadline else signal.SIGKILL
                time.sleep(0.1)
        except ProcessLookupError:  # nothing is left of it
            self.process.wait()

    def _build(self):
        return self._run(['cmake', '--build', '--preset', PRESET, '--target', *TARGETS],
                         self.environment) == 0

    def _object_code(self):
        digest = hashlib.sha256()
        for file in sorted((self.root / 'build' / PRESET).rglob('*.obj')):
            digest.update(file.read_bytes())
        return digest.digest()

    def _test(self, changed=''):
        self.bed = self.bed or Bed(self.root, self.bed_folder)
        # The file of tests that is most likely to see the change comes first.
        room = f'{Path(changed).stem}Test.cpp'
        has_tests = (self.root / 'tests/unit' / room).is_file()
        first = [['wine', UNIT_TESTS, f'--file={room}']] if has_tests else []
        for command in first + TESTS:
            code = self._run(command + FLAGS, self.bed.environment, self.limit)
            if code == 0:
                continue
            if code != TEST_FAILED:
                # Nothing that is left behind may disturb the next tests.
                self._end_bed()
            if code is None:
                return Outcome.TIMED_OUT, ''
            failed = FAILED_TEST.search(self.log.read_text(encoding='utf-8', errors='replace'))
            return Outcome.KILLED, failed.group(1) if failed else f'exit code {code}'
        return Outcome.SURVIVED, ''

    def _end_bed(self):
        if self.bed is not None:
            self.bed.close()
            self.bed = None


def _copy(checkout, root):
    """Copies what git knows or would add. What is equal stays, and what was built from it."""
    listing = subprocess.run(
        ['git', 'ls-files', '-z', '--cached', '--others', '--exclude-standard'], cwd=checkout,
        stdout=subprocess.PIPE, check=True).stdout
    names = {name for name in os.fsdecode(listing).split('\0') if (checkout / name).is_file()}
    for name in names:
        held, own = checkout / name, root / name
        if not own.is_file() or own.read_bytes() != held.read_bytes():
            own.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(held, own)
    for file in root.rglob('*'):
        name = str(file.relative_to(root))
        if file.is_file() and not name.startswith('build/') and name not in names:
            file.unlink()
