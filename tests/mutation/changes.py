"""Single changes of a C++ source that its tests should notice."""
from typing import NamedTuple

from tokens import Code

# What replaces an operator with blanks around it.
BINARY = {
    '<': ['<=', '>='], '<=': ['<', '>'], '>': ['>=', '<='], '>=': ['>', '<'],
    '==': ['!='], '!=': ['=='], '&&': ['||'], '||': ['&&'],
    '+': ['-'], '-': ['+'], '*': ['/'], '/': ['*'], '%': ['*'], '+=': ['-='], '-=': ['+='],
}
ANYWHERE = {'++': ['--'], '--': ['++'], '!': ['']}
WORDS = {'true': ['false'], 'false': ['true'], 'break': ['continue'], 'continue': ['break']}
# A condition with one of these at its top is changed there.
OWN_OPERATORS = {'<', '<=', '>', '>=', '==', '!=', '!'}
ASSIGNMENTS = {'=', '+=', '-=', '*=', '/=', '%=', '&=', '|=', '^=', '<<=', '>>='}
NO_STATEMENTS = {
    'auto', 'break', 'case', 'catch', 'class', 'const', 'constexpr', 'continue', 'default',
    'delete', 'do', 'else', 'enum', 'explicit', 'extern', 'for', 'friend', 'goto', 'if', 'inline',
    'namespace', 'private', 'protected', 'public', 'return', 'static', 'static_assert', 'struct',
    'switch', 'template', 'throw', 'try', 'typedef', 'typename', 'union', 'using', 'virtual',
    'while',
}
WITH_CONDITION = {'if', 'constexpr', 'for', 'while', 'switch'}
BEFORE_OPERANDS = {'sizeof', 'new'}
NOTHING = '{}'  # also stands where a condition needs a statement


class Change(NamedTuple):
    file: str
    line: int
    column: int
    start: int
    end: int
    old: str
    new: str
    code: str  # the line

    @property
    def place(self):
        return f'{self.file}:{self.line}:{self.column}'

    def words(self):
        old = ' '.join(self.old.split())
        return f'{old} removed' if self.new in {'', NOTHING} else f'{old} -> {self.new}'

    def applied(self, source):
        return source[:self.start] + self.new + source[self.end:]


def changes_of(source, file):
    """All changes of the source, in the order of their places."""
    code = Code(source)
    left_alone = _left_alone(code)
    found = []
    lines = source.splitlines()
    for index, token in enumerate(code.tokens):
        if index in left_alone:
            continue
        edits = [(token.start, token.end, new) for new in _replacements(code, index)]
        edits += _negations(code, index)
        edits += _deletions(code, index)
        for start, end, new in edits:
            line = source.count('\n', 0, start) + 1
            column = start - (source.rfind('\n', 0, start) + 1) + 1
            found.append(Change(file, line, column, start, end, source[start:end], new,
                                lines[line - 1].strip()))
    return sorted(found, key=lambda change: (change.start, change.end, change.new))


def _left_alone(code):
    """Assertions of the compiler, and the zero of a function that has no body."""
    alone = set()
    for index, token in enumerate(code.tokens):
        if token.text == 'static_assert':
            alone.update(range(index, code.partner.get(index + 1, index) + 1))
        if (token.text == '0' and code.text(index - 1) == '=' and
                code.text(index - 2) in {')', 'const', 'noexcept', 'override'}):
            alone.add(index)
    return alone


def _replacements(code, index):
    token = code.tokens[index]
    if token.kind == 'number':
        return _other_numbers(token.text)
    if token.kind == 'word':
        return WORDS.get(token.text, [])
    if token.kind == 'sign' and code.text(index - 1) != 'operator':
        if token.blank_before and token.blank_after:
            return BINARY.get(token.text, [])
        return ANYWHERE.get(token.text, [])
    return []


def _other_numbers(text):
    digits = text.rstrip('uUlLzZ')
    try:
        value = int(digits.replace("'", ''), 0)
    except ValueError:  # a fraction
        return []
    suffix = text[len(digits):]
    if value == 1:
        return ['0' + suffix, '2' + suffix]
    written = f'{value + 1:#x}' if digits[:2] in {'0x', '0X'} else str(value + 1)
    return [written + suffix]


def _negations(code, index):
    """Of the condition of `if` and `while`, and of what a function returns that gives a bool."""
    if code.text(index) in {'if', 'while'} and code.text(index + 1) == '(':
        first, last = index + 2, code.partner[index + 1] - 1
        for inner in code.level(first, last):
            if code.text(inner) == ';':
                first = inner + 1
        return _negated(code, first, last)
    edits = []
    if code.text(index) == 'bool':
        body = _body_of_function(code, index)
        for inner in range(body, code.partner.get(body, body)) if body else []:
            if code.text(inner) == 'return':
                end = code.end_of_statement(inner)
                edits += _negated(code, inner + 1, end - 1) if end else []
    return edits


def _negated(code, first, last):
    top = [code.text(index) for index in code.level(first, last)]
    declares = '=' in top
    if not top or declares or top[0] in {'true', 'false', '{'} or OWN_OPERATORS & set(top):
        return []
    return [(code.tokens[first].start, code.tokens[last].end, f'!({code.span(first, last)})')]


def _body_of_function(code, index):
    """The brace of the function that returns the type at index; 0 when there is none."""
    index += 1
    if code.text(index - 2) != '->':
        while code.tokens[index].kind == 'word' or code.text(index) == '::':
            index += 1
        converts = code.text(index - 2) == 'operator'
        if code.text(index) != '(' or (code.text(index - 1) == 'bool' and not converts):
            return 0
        index = code.partner[index] + 1
        while code.text(index) in {'const', 'noexcept', 'override', 'final'}:
            index += 1
    return index if code.text(index) == '{' else 0


def _deletions(code, index):
    if not _begins_statement(code, index):
        return []
    end = code.end_of_statement(index)
    if end is None or not _does_something(code, index, end - 1):
        return []
    return [(code.tokens[index].start, code.tokens[end].end, NOTHING)]


def _begins_statement(code, index):
    token = code.tokens[index]
    if not code.holds_statements[index] or token.text in NO_STATEMENTS:
        return False
    if token.kind != 'word' and token.text not in {'*', '(', '++', '--'}:
        return False
    before = code.text(index - 1)
    if before == ')':
        return code.text(code.partner[index - 1] - 1) in WITH_CONDITION
    if before == ':':
        label = index - 1
        while code.text(label - 1) not in {';', '{', '}', ':'}:
            label -= 1
        return code.text(label) in {'case', 'default'}
    return before in {';', '{', '}', 'else', 'do'}


def _does_something(code, first, last):
    """Whether it is a call, an assignment or a step, and declares nothing."""
    level = list(code.level(first, last))
    for index, after in zip(level, level[1:]):
        token = code.tokens[index]
        if code.tokens[after].kind != 'word':
            continue
        of_type = token.text in {'*', '&', '&&', '>'} and not token.blank_before and index != first
        if of_type or (token.kind == 'word' and token.text not in BEFORE_OPERANDS):
            return False
    signs = {code.text(index) for index in level}
    return bool(ASSIGNMENTS & signs or {'++', '--'} & signs or code.text(last) == ')')
