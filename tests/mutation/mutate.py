#!/usr/bin/env -S python3 -B
"""Changes the sources below src/ui, one place at a time, and lists what no unit test sees.

Each change is built and tested in a copy of the tree below build/mutation; the checkout stays as it
is. A change that does not build (warnings are errors) or that gives the same object code is
replaced by the next one of the seed's sequence. Tests that run out of time have seen the change.

  tests/mutation/mutate.py --list                       what would be changed
  tests/mutation/mutate.py --count 20 --jobs 2          twenty changes, two at a time
  tests/mutation/mutate.py --only 12 17                 these numbers of the seed's sequence again
  tests/mutation/mutate.py --only src/platform/Trim.h:9:20    every change of this place

The exit code is 0 when all changes were seen, 1 when one survived, 2 when nothing could be tried.
"""
import argparse
import fcntl
import random
import re
import signal
import sys
import threading
import time
from collections import Counter
from contextlib import ExitStack
from pathlib import Path

from changes import changes_of
from workplace import Failure, Outcome, Workplace

CHECKOUT = Path(__file__).resolve().parents[2]
WORK = CHECKOUT / 'build/mutation'
FOLDERS = ['platform', 'settings', 'browser', 'accessibility', 'extract', 'report', 'capture']
REPLACED = {Outcome.NOT_BUILT, Outcome.SAME_CODE}
LONGEST_SHOWN = 70  # characters of a change


def all_changes():
    """The changes of each file."""
    files = sorted(file for folder in FOLDERS for file in (CHECKOUT / 'src' / folder).iterdir()
                   if file.suffix in {'.cpp', '.h'})
    names = [file.relative_to(CHECKOUT).as_posix() for file in files]
    return {name: changes_of((CHECKOUT / name).read_text(encoding='utf-8'), name)
            for name in names}


def in_sequence(changes, seed):
    """The changes in the order of the seed; each file has its share in every part of it."""
    chance = random.Random(seed)
    placed = []
    for of_file in changes.values():
        shuffled = chance.sample(of_file, len(of_file))
        placed += [((index + chance.random()) / len(shuffled), change)
                   for index, change in enumerate(shuffled)]
    return [change for _, change in sorted(placed)]


def selected(only, sequence, changes):
    """What --only names: pairs of number and change."""
    numbered = list(enumerate(sequence, 1))
    chosen = []
    for word in only:
        if re.fullmatch(r'\d+', word):
            if not 1 <= int(word) <= len(numbered):
                raise Failure(f'{word}: the sequence has the numbers 1 to {len(numbered)}')
            chosen.append(numbered[int(word) - 1])
            continue
        file = word.split(':')[0]
        if file not in changes:
            raise Failure(f'{file}: no such source; they are in src/ in {", ".join(FOLDERS)}')
        at_place = [pair for pair in numbered if pair[1].place == word]
        if not at_place:
            raise Failure(f'{word}: nothing to change there; a place is FILE:LINE:COLUMN')
        chosen += at_place
    return chosen


def line_of(number, change, outcome=''):
    words = change.words()
    if len(words) > LONGEST_SHOWN:
        words = words[:LONGEST_SHOWN] + '…'
    return f'{number:5}  {change.place}  {words}' + (f'  {outcome}' if outcome else '')


class Run:
    """Tries changes until enough of them were built, one in each workplace at a time."""

    def __init__(self, chosen, count):
        self.waiting = iter(chosen)
        self.count = count
        self.lock = threading.Lock()
        self.building = threading.Lock()
        self.in_work = 0
        self.outcomes = Counter()
        self.survivors = []
        self.failure = None

    def work(self, workplace):
        try:
            # One after the other: the second one finds objects in a compiler cache.
            with self.building:
                workplace.build_unchanged()
            workplace.test_unchanged()
            while (pair := self._next()) is not None:
                self._note(pair, *workplace.outcome_of(pair[1]))
        except (Failure, OSError) as failure:
            self.failure = failure

    def stop(self):
        self.count = 0

    def built(self):
        return sum(count for outcome, count in self.outcomes.items() if outcome not in REPLACED)

    def _next(self):
        # Where the last one is in work it may still have to be replaced.
        while True:
            with self.lock:
                if self.built() >= self.count or self.failure:
                    return None
                if self.built() + self.in_work < self.count:
                    pair = next(self.waiting, None)
                    self.in_work += pair is not None
                    return pair
            time.sleep(1)

    def _note(self, pair, outcome, test):
        with self.lock:
            if self.count == 0:  # what is ended early has no outcome
                return
            self.in_work -= 1
            self.outcomes[outcome] += 1
            if outcome is Outcome.SURVIVED:
                self.survivors.append(pair)
            print(line_of(*pair, outcome.value + (f' by {test}' if test else '')), flush=True)


def report(run, seconds):
    if run.survivors:
        print('\nNo test saw:')
        for number, change in sorted(run.survivors):
            print(f'{line_of(number, change)}\n         {change.code}')
    killed = run.outcomes[Outcome.KILLED] + run.outcomes[Outcome.TIMED_OUT]
    print(f'\n{killed} of {run.built()} changes were seen '
          f'({run.outcomes[Outcome.TIMED_OUT]} of them ran out of time); '
          f'{run.outcomes[Outcome.NOT_BUILT]} more did not build, '
          f'{run.outcomes[Outcome.SAME_CODE]} gave the same object code; '
          f'{seconds / 60:.0f} minutes')


def try_changes(chosen, count, jobs):
    # Ends what was started here, as the end of a run does.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    began = time.monotonic()
    run = Run(chosen, count)
    with ExitStack() as stack:
        WORK.mkdir(parents=True, exist_ok=True)
        lock = stack.enter_context(open(WORK / 'lock', 'w', encoding='utf-8'))
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise Failure(f'Another run uses {WORK}.') from None
        workplaces = [stack.enter_context(Workplace(CHECKOUT, WORK / str(number)))
                      for number in range(1, jobs + 1)]
        stack.callback(run.stop)
        threads = [threading.Thread(target=run.work, args=(workplace,), daemon=True)
                   for workplace in workplaces]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
    if run.failure:
        raise Failure(run.failure)
    report(run, time.monotonic() - began)
    return 1 if run.survivors else 0


def at_least_one(text):
    number = int(text)
    if number < 1:
        raise argparse.ArgumentTypeError(f'{text} is less than 1')
    return number


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--seed', type=int, default=1, help='selects the sequence of changes (1)')
    parser.add_argument('--count', type=at_least_one, default=120, help='how many are built (120)')
    parser.add_argument('--only', nargs='+', metavar='CHANGE', help='numbers or places')
    parser.add_argument('--list', action='store_true', help='only print them')
    parser.add_argument('--jobs', type=at_least_one, default=1, help='how many at a time (1)')
    arguments = parser.parse_args()
    changes = all_changes()
    sequence = in_sequence(changes, arguments.seed)
    try:
        chosen, count = list(enumerate(sequence, 1)), arguments.count
        if arguments.only:
            chosen = selected(arguments.only, sequence, changes)
            count = len(chosen)
        if count > len(chosen):
            raise Failure(f'--count {count}: there are {len(chosen)} changes')
        if not arguments.list:
            return try_changes(chosen, count, arguments.jobs)
        for number, change in chosen[:count]:
            print(line_of(number, change))
        return 0
    except Failure as failure:
        print(failure, file=sys.stderr)
        return 2


if __name__ == '__main__':
    sys.exit(main())
