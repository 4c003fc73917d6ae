#!/usr/bin/env python3
"""What counts as a change of a source, and that a seed selects the same ones again."""
import unittest

from changes import changes_of
from mutate import Failure, in_sequence, selected


def words_of(source):
    return [change.words() for change in changes_of(source, 'X.cpp')]


def in_function(statements, head='void F()'):
    return head + ' {\n' + statements + '\n}\n'


CHANGED = {
    'a bound': ('bool a = b < c;', ['< -> <=', '< -> >=']),
    'an equality': ('bool a = b == c;', ['== -> !=']),
    'a connection': ('bool a = b && c;', ['&& -> ||']),
    'a sum': ('int a = b + c;', ['+ -> -']),
    'a sum over two lines': ('int a = b +\n        c;', ['+ -> -']),
    'a step': ('for (; a != b; ++a) {}', ['!= -> ==', '++ -> --']),
    'a negation': ('bool a = !b;', ['! removed']),
    'zero': ('int a = 0;', ['0 -> 1']),
    'one': ('int a = 1;', ['1 -> 0', '1 -> 2']),
    'a number': ("int a = 4'095u;", ["4'095u -> 4096u"]),
    'a hexadecimal number': ('int a = 0xFF;', ['0xFF -> 0x100']),
    'a truth': ('bool a = true;', ['true -> false']),
    'the end of a loop': ('for (;;) { break; }', ['break -> continue']),
    'a call': ('a.b->C(d);', ['a.b->C(d); removed']),
    'a call of what a call gives': ('A()[b].C<D>(e).F();', ['A()[b].C<D>(e).F(); removed']),
    'a call with a function': ('A([&](B c) { c; });', ['A([&](B c) { c; }); removed']),
    'an assignment': ('*a.b = c;', ['*a.b = c; removed']),
    'an assignment of a size': ('a.b = sizeof c;', ['a.b = sizeof c; removed']),
    'a condition': ('if (A(b)) C();', ['A(b) -> !(A(b))', 'C(); removed']),
    'a condition with a declaration': ('if (int a = B(); C) return;', ['C -> !(C)']),
    'a loop': ('while (a || b) {}', ['a || b -> !(a || b)', '|| -> &&']),
    'a case': ('switch (a) { case b: C(); }', ['C(); removed']),
}
LEFT_ALONE = {
    'a comment': '// a < b + 1\n/* if (c)\n D(); */',
    'a text': r'const char* a = "b < 1 \" + 2";',
    'a raw text': 'const char* a = R"x(b < "1" + 2)x";',
    'a character': "char a = '\\'', b = '1';",
    'an include': '#include <a/b1.h>',
    'a definition': '#define A 1 + \\\n  2',
    'an assertion of the compiler': 'static_assert(sizeof(A) == 40);',
    'a type': 'std::vector<A*> a; const B& b = c; D&& d = e; F* f = g;',
    'a template': 'template <typename A> std::function<A(B)> b;',
    'a function without a body': 'struct A { virtual void B() = 0; };',
    'a declared condition': 'if (A* b = C()) return;',
    'a declaration with arguments': 'A b(c); const D e(f); G<H> i(j); K l{};',
    'a fraction': 'double a = 0.5;',
    'a sign': 'int a = -b;',
}


class ChangesTest(unittest.TestCase):
    def test_each_operator_has_its_changes(self):
        for name, (statement, expected) in CHANGED.items():
            with self.subTest(name):
                self.assertEqual(words_of(in_function(statement)), expected)

    def test_what_is_no_operator_is_left_alone(self):
        for name, statement in LEFT_ALONE.items():
            with self.subTest(name):
                self.assertEqual(words_of(in_function(statement)), [])

    def test_what_a_function_returns_is_negated_only_when_it_gives_a_bool(self):
        self.assertEqual(words_of(in_function('return A(b);', 'bool C::F(D) const')),
                         ['A(b) -> !(A(b))'])
        self.assertEqual(words_of(in_function('return a;', 'explicit operator bool() const')),
                         ['a -> !(a)'])
        self.assertEqual(words_of('auto a = [] -> bool { return b; };'), ['b -> !(b)'])
        self.assertEqual(words_of(in_function('return A(b);', 'int F()')), [])

    def test_outside_of_functions_nothing_is_removed(self):
        self.assertEqual(words_of('namespace a {\nclass B {\n public:\n  B(C);\n};\n}'), [])
        self.assertEqual(words_of('A b = {C(d), E(f)};'), [])

    def test_a_change_replaces_its_own_place(self):
        source = 'int a = 2;\nint b = 3 * 2;\n'
        change = changes_of(source, 'X.cpp')[-1]
        self.assertEqual((change.place, change.words()), ('X.cpp:2:13', '2 -> 3'))
        self.assertEqual(change.applied(source), 'int a = 2;\nint b = 3 * 3;\n')


class SequenceTest(unittest.TestCase):
    def setUp(self):
        source = {'many.cpp': 'int a = 2;' * 300, 'few.cpp': 'int a = 2;' * 100, 'no.cpp': ''}
        self.changes = {file: changes_of(text, file) for file, text in source.items()}

    def test_a_seed_gives_the_same_sequence_again(self):
        self.assertEqual(in_sequence(self.changes, 7), in_sequence(self.changes, 7))
        self.assertNotEqual(in_sequence(self.changes, 7), in_sequence(self.changes, 8))

    def test_each_file_has_its_share_of_the_first_ones(self):
        first = [change.file for change in in_sequence(self.changes, 7)[:40]]
        self.assertIn(first.count('few.cpp'), range(9, 12))

    def test_changes_are_named_by_number_and_by_place(self):
        sequence = in_sequence(self.changes, 7)
        self.assertEqual(selected(['3'], sequence, self.changes), [(3, sequence[2])])
        place = sequence[2].place
        self.assertEqual(selected([place], sequence, self.changes), [(3, sequence[2])])

    def test_what_is_not_there_is_refused(self):
        for word in ('0', '401', 'none.cpp:1:1', 'few.cpp:1:1', 'few.cpp', 'few'):
            with self.subTest(word), self.assertRaises(Failure):
                selected([word], in_sequence(self.changes, 7), self.changes)


if __name__ == '__main__':
    unittest.main()
