#!/usr/bin/env python3
"""Runs VelmoraText.exe on a console: a pseudo terminal, which Wine shows it as one. Runs in the test
bed.

--spoil expects another text than the fixture's: the comparison must fail.
"""
import argparse
import fcntl
import os
import pty
import select
import struct
import sys
import termios
import time

from outputs import Fixture

PATIENCE = 30  # seconds

failures = []


def expect(what, holds, seen):
    if not holds:
        failures.append(f'{what}: {seen[-400:]!r}')


class OnTerminal:
    def __init__(self, *words, **environment):
        self.seen = ''
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.environ.update(environment)
            os.execvp('wine', ['wine', *words])
        # Wide enough for every line.
        fcntl.ioctl(self.terminal, termios.TIOCSWINSZ, struct.pack('HHHH', 50, 200, 0, 0))

    def read_until(self, text=None):
        """Whether the text comes; without one, reads until the program ends."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if text is not None and text in self.seen:
                return True
            if not select.select([self.terminal], [], [], 0.1)[0]:
                continue
            try:
                read = os.read(self.terminal, 65536)
            except OSError:
                read = b''
            if not read:
                return text is None
            self.seen += read.decode(errors='replace')
        os.kill(self.process, 9)
        return False

    def type(self, keys):
        os.write(self.terminal, keys)

    def exit_code(self):
        self.read_until()
        _, status = os.waitpid(self.process, 0)
        return os.waitstatus_to_exitcode(status)


def check_text(arguments):
    with Fixture(arguments.fixture32, ['place=50,50,400,300', 'rows=japanese']) as target:
        run = OnTerminal(arguments.program, '--window', target.windows['rows'], '--after', '1')
        expect('the exit code', run.exit_code() == 0, run.seen)
        expect('the countdown', '1 秒後に読み取ります' in run.seen, run.seen)
        text = '別の文字' if arguments.spoil else '名前はまだ無い。'
        expect('the text on a console', text in run.seen, run.seen)


def check_end_of_watching(arguments):
    with Fixture(arguments.fixture32, ['place=0,0,1280,1024', 'rows=japanese']):
        run = OnTerminal(arguments.program, '--watch')
        expect('a line for the first rest', run.read_until('"version":1'), run.seen)
        run.type(b'\x03')
        expect('the exit code after Ctrl+C', run.exit_code() == 0, run.seen)


def check_language(arguments):
    run = OnTerminal(arguments.program, '--nonsense', LC_ALL='C.UTF-8')
    expect('the exit code of a wrong argument', run.exit_code() == 2, run.seen)
    expect('English', '--nonsense: no such option' in run.seen, run.seen)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--program', required=True)
    parser.add_argument('--fixture32', required=True)
    parser.add_argument('--spoil', action='store_true')
    arguments = parser.parse_args()
    check_text(arguments)
    check_end_of_watching(arguments)
    check_language(arguments)
    print('\n'.join(failures))
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
