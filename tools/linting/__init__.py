"""The checks behind tools/lint. Each module has check(tree), which returns its problems as lines of text."""
