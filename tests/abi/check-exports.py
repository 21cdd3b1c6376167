#!/usr/bin/env python3
"""The shared library exports what numbering/*.h declare NUMBERING_API and nothing else, and every
class those headers define carries NUMBERING_API (else it would be missing for the library's users).

    check-exports.py <libNumbering.so> <public include directory>...
"""

import re
import subprocess
import sys
from pathlib import Path

EXPORTED_CLASS = re.compile(r"^(?:class|struct) NUMBERING_API (\w+)\b", re.MULTILINE)
EXPORTED_FUNCTION = re.compile(r"^NUMBERING_API [\w:<>*& ]+?\b(\w+)\(", re.MULTILINE)
ANY_CLASS = re.compile(r"^(?:class|struct) (\w+)( : [^{;]*)? \{", re.MULTILINE)
# Symbols that belong to the class or function they name.
SPECIAL = re.compile(r"^(typeinfo name for |typeinfo for |vtable for |VTT for |(non-)?virtual thunk to )")


def public_api(include_dirs):
    scopes, functions, unmarked = set(), set(), []
    for directory in include_dirs:
        for header in sorted(Path(directory).glob("numbering/*.h")):
            text = header.read_text()
            prefix = "numbering::" if "namespace numbering {" in text else ""
            scopes.update(prefix + name for name in EXPORTED_CLASS.findall(text))
            functions.update(prefix + name for name in EXPORTED_FUNCTION.findall(text))
            unmarked += ["%s: class %s" % (header.name, name) for name, _ in ANY_CLASS.findall(text)]
    return scopes, functions, unmarked


def outside(symbol, scopes, functions):
    name = SPECIAL.sub("", symbol).split("(", 1)[0]
    if name in scopes or name in functions:
        return False
    return not any(name.startswith(scope + "::") for scope in scopes)


def main(library, *include_dirs):
    scopes, functions, unmarked = public_api(include_dirs)
    listing = subprocess.run(["nm", "-D", "--defined-only", "--demangle", library],
                             check=True, capture_output=True, text=True).stdout
    symbols = [line.split(" ", 2)[2] for line in listing.splitlines() if line.count(" ") >= 2]
    stray = [symbol for symbol in symbols if outside(symbol, scopes, functions)]
    for symbol in stray:
        print("exported but not public: " + symbol)
    for declaration in unmarked:
        print("public class without NUMBERING_API: " + declaration)
    print("%d exported symbols; %d public classes, %d public functions"
          % (len(symbols), len(scopes), len(functions)))
    return 1 if stray or unmarked or not symbols else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
