"""C++ as tokens, as far as finding changes needs it: without blanks, comments and directives."""
import re
from typing import NamedTuple

PATTERN = re.compile(r"""
    (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<blank>\s+)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<text>(?:u8|[LuU])?R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)"
           | (?:u8|[LuU])?"(?:\\.|[^"\\\n])*"
           | (?:u8|[LuU])?'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:'?[\w.])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|->\*|\.\.\.|<<=|>>=|::|->|\.\*|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)
NO_CODE = {'directive', 'blank', 'comment'}
OPENING = {'(': ')', '[': ']', '{': '}'}
SCOPES = {'class', 'struct', 'union', 'enum', 'namespace'}
# What a brace with a blank before it follows when it holds values.
BEFORE_VALUES = {'=', 'return', ',', '(', '{', '?'}


class Token(NamedTuple):
    kind: str
    text: str
    start: int
    # Code is formatted: blanks surround a binary operator, and no star, ampersand or angle bracket
    # of a type.
    blank_before: bool
    blank_after: bool

    @property
    def end(self):
        return self.start + len(self.text)


def tokens_of(source):
    found = []
    for match in PATTERN.finditer(source):
        if match.lastgroup in NO_CODE:
            continue
        # The mark of a raw text is a group too.
        kind = 'text' if match.lastgroup == 'mark' else match.lastgroup
        before, after = source[match.start() - 1:match.start()], source[match.end():match.end() + 1]
        found.append(Token(kind, match.group(), match.start(), before.isspace(), after.isspace()))
    return found


class Code:
    """Tokens with the brackets that belong together, and with what each brace holds."""

    def __init__(self, source):
        self.source = source
        self.tokens = tokens_of(source)
        self.partner = {}  # of each bracket, both ways
        self.holds_statements = [False] * len(self.tokens)  # what is directly around each token
        self._match()

    def text(self, index):
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ''

    def span(self, first, last):
        return self.source[self.tokens[first].start:self.tokens[last].end]

    def level(self, first, last):
        """The indexes from first to last, without what is in brackets between them."""
        index = first
        while index <= last:
            yield index
            index = max(index, self.partner.get(index, index)) + 1

    def end_of_statement(self, first):
        """The index of the semicolon that ends what begins at first; None without one."""
        for index in self.level(first, len(self.tokens) - 1):
            if self.text(index) == ';':
                return index
            if self.text(index) == '}' and self.partner.get(index, index) < first:
                return None
        return None

    def _match(self):
        open_brackets = []  # index, and whether statements follow
        for index, token in enumerate(self.tokens):
            if token.kind == 'sign' and token.text in OPENING.values() and open_brackets:
                opened, _ = open_brackets.pop()
                self.partner[opened], self.partner[index] = index, opened
            self.holds_statements[index] = bool(open_brackets) and open_brackets[-1][1]
            if token.kind == 'sign' and token.text in OPENING:
                open_brackets.append((index, token.text == '{' and self._opens_block(index)))

    def _opens_block(self, brace):
        if not self.tokens[brace].blank_before or self.text(brace - 1) in BEFORE_VALUES:
            return False
        first = brace
        while first > 0 and self.text(first - 1) not in {';', '{', '}'}:
            first -= 1
        return not any(token.text in SCOPES for token in self.tokens[first:brace])
