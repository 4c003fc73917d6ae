#!/usr/bin/env python3
"""Parses what VelmoraText.exe writes with Python's own parsers, and compares it with what the
fixture holds. Runs in the test bed.

--spoil compares with another text than the fixture's: the comparison must fail.
"""
import argparse
import csv
import io
import json
import os
import re
import subprocess
import sys

SETS = {
    'japanese': ['吾輩は猫である', '名前はまだ無い。', 'ｶﾀｶﾅ 表示ソ能ポ', '①㈱髙'],
    'odd': ['a\tb', 'a,b', '"q"', 'line\r\nbreak', 'lf\nonly', ' ', '', 'cat \U0001F408 ไทย ü',
            '\\/:*?"<>|', '&Menu'],
    'hostile': ['high \ufffd', '\ufffd low', '\ufffd\ufffd', '\x01\x02\x08\x1b[2J\x7f\x85',
                '\u2028\u2029\ufeff\ufffe\uffff', '\\u0000"},{', '\uff5e' * 65535],
}
COLUMNS = 3
KEYS = ['version', 'point', 'window', 'text', 'items', 'object', 'page', 'status', 'remarks']

failures = []


def expect(what, seen, expected):
    if seen != expected:
        failures.append(f'{what}: {str(seen)[:300]!r} is not what the fixture holds: '
                        f'{str(expected)[:300]!r}')


def run(program, *words):
    done = subprocess.run(['wine', program, *words], capture_output=True, timeout=60, check=False)
    return done.returncode, done.stdout


class Fixture:
    def __init__(self, program, words):
        self.process = subprocess.Popen(['wine', program, *words], stdout=subprocess.PIPE)
        self.windows = {}
        for line in self.process.stdout:
            name, _, handle = line.decode().strip().partition('=')
            if name == 'ready':
                return
            self.windows[name] = handle
        raise RuntimeError(f'{program} {words}: not ready')

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def table(texts):
    return [[texts[(row + column) % len(texts)] for column in range(COLUMNS)]
            for row in range(len(texts))]


def check_lists(arguments, fixture, bits):
    for name, texts in SETS.items():
        held = ['spoilt'] + texts[1:] if arguments.spoil else texts
        with Fixture(fixture, [f'rows={name}', f'listbox={name}']) as target:
            what = f'{name} in {bits} bits'
            code, output = run(arguments.program, '--window', target.windows['rows'], '--json')
            read = json.loads(output)
            expect(what, code, 0)
            expect(what, list(read), KEYS)
            expect(what, read['window']['process']['bits'], bits)
            expect(what, read['items']['rows'], table(held))
            expect(what, read['items']['headers'], ['列0', '列1', '列2'])
            expect(what, (read['items']['columns'], read['items']['complete']), (COLUMNS, True))
            code, output = run(arguments.program, '--window', target.windows['listbox'], '--json')
            expect(what, json.loads(output)['items']['rows'], [[text] for text in held])
            code, output = run(arguments.program, '--window', target.windows['rows'], '--csv')
            rows = list(csv.reader(io.StringIO(output.decode(), newline='')))
            expect(what + ' as CSV', rows, table(held))


def check_hostile(arguments):
    code, output = run(arguments.hostile)
    expect('the hostile texts', code, 0)
    lines = output.decode().replace('\r\n', '\n').rstrip('\n').split('\n')
    expect('the number of hostile texts', len(lines), 22)
    for units, line in zip(lines[::2], lines[1::2]):
        text = bytes.fromhex(units).decode('utf-16-be', 'surrogatepass')
        # Halves of pairs are replaced, one for one.
        text = re.sub('[\ud800-\udfff]', '\ufffd', text)
        read = json.loads(line)
        expect('a hostile text', read['text']['text'], text)
        expect('a hostile cell', read['items']['rows'][0], [text, text])
        expect('a hostile name', read['object']['children'][0]['name'], text)
        expect('a hostile page', read['page']['chain'][0]['tag'], text)
        expect('a hostile descendant', read['descendants'][0]['title'], text)


def blanked(value, key=''):
    """Without what differs from run to run: handles, numbers of processes, places, files."""
    if key in ('handle', 'handleHex', 'rectangle', 'id', 'file'):
        return None
    if isinstance(value, dict):
        return {name: blanked(held, name) for name, held in value.items()}
    if isinstance(value, list):
        return [blanked(held) for held in value]
    return value


def check_golden(arguments):
    """VELMORA_WRITE_GOLDEN=1 writes the files anew."""
    # With a status bar of its own: without one the foreground window's is read.
    words = ['place=50,50,400,300', 'rows=odd', 'tree=japanese', 'status=japanese']
    with Fixture(arguments.fixture32, words) as target:
        for name, words in {'list': ['--most', '4'], 'tree': ['--tree']}.items():
            window = target.windows['rows' if name == 'list' else 'tree']
            _, output = run(arguments.program, '--window', window, '--json', *words)
            read = blanked(json.loads(output))
            # Where the tests run as administrator differs from bed to bed.
            read['window']['process']['elevated'] = None
            path = os.path.join(arguments.golden, name + '.json')
            if os.environ.get('VELMORA_WRITE_GOLDEN'):
                with open(path, 'w', encoding='utf-8') as golden:
                    json.dump(read, golden, ensure_ascii=False, indent=2)
                    golden.write('\n')
            with open(path, encoding='utf-8') as golden:
                expect(path, read, json.load(golden))


def main():
    parser = argparse.ArgumentParser()
    for name in ('program', 'hostile', 'fixture32', 'fixture64', 'golden'):
        parser.add_argument('--' + name, required=True)
    parser.add_argument('--spoil', action='store_true')
    arguments = parser.parse_args()
    check_lists(arguments, arguments.fixture32, 32)
    if os.environ.get('WINEARCH') == 'win64':
        check_lists(arguments, arguments.fixture64, 64)
    check_hostile(arguments)
    check_golden(arguments)
    print('\n'.join(failures))
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
