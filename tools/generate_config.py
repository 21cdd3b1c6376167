#!/usr/bin/env python3
"""Writes the shipped default configuration of libNumbering (the files in data/).

Input: the numbering facts directory, facts/ by default (tab-separated files: countries.tsv,
formats.tsv, formats_inherited.tsv, areacodes/<cc>.tsv, areacodes/<cc>-nongeo.tsv,
areacodes/57-carriers.tsv; its README.md names their sources), and the library's plans as
tools/plans.tsv lists them.
Output: the *_default.properties files plus tz310cnp_57.properties, and the example numbers:
example_numbers.tsv and sample_numbers.txt (the sample of `numbering diff`).

    python3 tools/generate_config.py                 # regenerate data/
    python3 tools/generate_config.py --check         # exit 1 and list the files that are stale
    python3 tools/generate_config.py --facts DIR --out DIR

The output depends on the facts only: same facts, byte-identical files (sorted, no dates).
The choices made here (local rule, masks, what goes into each area code tree) are explained in
docs/configuration.md.
"""

import argparse
import csv
import filecmp
import os
import re
import sys
import tempfile
import unicodedata
from pathlib import Path

PROJECT_ROOT = Path(__file__).resolve().parent.parent
DEFAULT_FACTS = PROJECT_ROOT / "facts"
DEFAULT_OUT = PROJECT_ROOT / "data"

GENERATOR = "tools/generate_config.py"

# The library's plans, as its plan registry lists them in tools/plans.tsv (a test of the library keeps
# the two equal): calling code, country, what the plan reads, how it writes an unknown area code.
PLAN_LISTING = Path(__file__).resolve().parent / "plans.tsv"


def read_plans(path=PLAN_LISTING):
    with open(path, encoding="ascii", newline="") as handle:
        lines = [line for line in handle if not line.startswith("#")]
    return list(csv.DictReader(lines, delimiter="\t", quoting=csv.QUOTE_NONE))


PLANS = read_plans()

# Calling codes whose numbering plan is switched on by the activation file.
PLAN_CODES = [row["calling_code"] for row in PLANS]

# Plans that read an area code tree from tz310cnp_<cc>_default.properties, and which
# non-geographic prefixes their tree must hold, by how the plan writes a prefix missing from it:
#   "all"      the plan guesses an area code (Germany puts the installation's own area code in
#              front of it, Austria cuts the first four digits, Argentina and Mexico take the
#              installation's area), so every mobile and service range is listed;
#   "shadowed" the plan writes it neutrally, as "(0) national number" (Netherlands, Belgium,
#              United Kingdom, Australia) or as a two-digit code (Ireland), which is right for a
#              number without an area code; a non-geographic range is listed only where a shorter
#              geographic code begins it and would otherwise be taken as its area code
#              (Belgium: 4 Liege before the mobile ranges 45-49, 9 Ghent before 90x).
TREE_PLANS = {row["calling_code"]: {"guessed": "all", "neutral": "shadowed"}[row["unknown_area_code"]]
              for row in PLANS if row["reads"] in ("area_codes", "translate_and_area_codes")}

# Prefixes that are not area codes although the facts list them as a number range.
# Argentina: the 9 is the international mobile marker, which the plan strips before the look-up.
NOT_AREA_CODES = {"54": {"9"}}

# The Colombian dialable strategy dials <international prefix><operator prefix><number>, so its
# international prefix is the part of the metadata pattern before the carrier code.
CARRIER_AFTER_INTL_PREFIX = {"57"}
OP_DEFAULT = "9"          # the strategy's own fallback operator; one of the confirmed operators
NOT_AN_OPERATOR = {"3"}   # 03 was the fixed-to-mobile access, not a carrier

# Local rule: empty (own-area numbers dialled without the area code) only where the country's
# plan itself reads a number without trunk prefix as a local number of the installation's area
# and completes it with the own area code: open numbering. Elsewhere the full national number is
# dialled, which a closed plan requires and an open one accepts as well.
OPEN_LOCAL_DIALLING = {"31", "43", "44", "49", "54", "61", "353"}
# North America: ten-digit local dialling (area code without the trunk prefix 1); seven digits
# no longer reach the numbers of overlaid area codes.
TEN_DIGIT_LOCAL = {"1"}
# Colombia: since the 2021 change every fixed number is dialled 60 + zone digit + 7 digits, and the
# Colombian plan writes fixed numbers as "+57 (zone digit) 7 digits"; "60F" dials exactly that.
LOCAL_RULE_OVERRIDES = {"57": "60F"}

SEPARATORS = (" ", "-", ".")


# ---------------------------------------------------------------------------------------------
# Reading the facts


def read_tsv(path):
    with open(path, encoding="utf-8", newline="") as handle:
        return list(csv.DictReader(handle, delimiter="\t", quoting=csv.QUOTE_NONE))


class Format:
    """One layout of the metadata: leading digits, grouping pattern, international layout."""

    def __init__(self, row):
        leading = row["leading_digits_last"] or row["leading_digits"]
        self.leading = re.compile(leading) if leading else None
        self.pattern = re.compile(row["pattern"])
        layout = row["intl_format"] if row["intl_format"] not in ("", "NA") else row["format"]
        self.international = row["intl_format"] != "NA"
        self.separators = _separators(layout, self.pattern.groups)
        self.national_prefix_rule = row["national_prefix_formatting_rule"]

    def match(self, nsn):
        if self.leading is not None and not self.leading.match(nsn):
            return None
        return self.pattern.fullmatch(nsn)


def _separators(layout, groups):
    """The separator written between group i and i+1 of a layout such as "$1 $2-$3"."""
    pieces = re.split(r"\$\d", layout)
    result = []
    for piece in pieces[1:groups]:
        sep = ""
        for candidate in SEPARATORS:
            if candidate in piece:
                sep = candidate
                break
        if piece and not sep:
            sep = " "
        result.append(sep)
    while len(result) < groups - 1:
        result.append(" ")
    return result


class Facts:
    def __init__(self, directory):
        self.directory = Path(directory)
        self.countries = read_tsv(self.directory / "countries.tsv")
        formats = read_tsv(self.directory / "formats.tsv")
        inherited = read_tsv(self.directory / "formats_inherited.tsv")
        self.formats_by_region = {}
        for row in formats:
            self.formats_by_region.setdefault(row["region"], []).append(Format(row))
        self.inherits = {row["region"]: row["uses_formats_of"] for row in inherited}
        self.main_by_code = {row["calling_code"]: row for row in self.countries
                             if row["main_country_for_code"] == "Y"}
        areacodes = self.directory / "areacodes"
        self.area_codes = {}
        self.nongeo = {}
        for path in sorted(areacodes.glob("*.tsv")):
            name = path.stem
            if name.isdigit():
                self.area_codes[name] = read_tsv(path)
            elif name.endswith("-nongeo"):
                self.nongeo[name[: -len("-nongeo")]] = read_tsv(path)
        self.carriers_57 = read_tsv(areacodes / "57-carriers.tsv")

    def formats_of(self, region):
        seen = set()
        while region and region not in seen:
            seen.add(region)
            if region in self.formats_by_region:
                return self.formats_by_region[region]
            region = self.inherits.get(region)
        return []


def choose_format(formats, nsn):
    """The first format whose leading digits and pattern both match, as the metadata applies them."""
    for fmt in formats:
        match = fmt.match(nsn)
        if match:
            return fmt, match
    return None, None


# ---------------------------------------------------------------------------------------------
# Text helpers

_SPECIAL_LETTERS = {"\u00df": "ss", "\u00d8": "O", "\u00f8": "o", "\u00c6": "AE", "\u00e6": "ae",
                    "\u0141": "L", "\u0142": "l", "\u0110": "D", "\u0111": "d", "\u00de": "Th",
                    "\u00fe": "th", "\u0152": "OE", "\u0153": "oe", "\u2019": "'", "\u2018": "'"}


def ascii_text(text):
    """ASCII transliteration: accents dropped, a few letters spelt out, anything else removed."""
    text = "".join(_SPECIAL_LETTERS.get(ch, ch) for ch in text)
    decomposed = unicodedata.normalize("NFKD", text)
    return "".join(ch for ch in decomposed if ord(ch) < 128 and not unicodedata.combining(ch))


def property_safe(text):
    """Text that the property reader returns unchanged inside a value and that splits nowhere:
    no ":" (the dialing rules field separator), no backslash, no "=", "#", "!", no "${"."""
    text = ascii_text(text)
    text = text.replace(":", " -").replace("\\", "/").replace("=", "-")
    text = text.replace("#", "No.").replace("!", "").replace("${", "$ {")
    text = re.sub(r"\s+", " ", text).strip()
    return text


def header(title, sources, lines=(), replaced_by_installation_file=True):
    out = ["# " + title,
           "# Generated by " + GENERATOR + " (do not edit: regenerate) from the numbering",
           "# facts compiled from public numbering metadata: " + ", ".join(sources) + "."]
    if replaced_by_installation_file:
        out.append("# An installation file of the same name without \"_default\" replaces this file"
                   " entirely.")
    out += ["# " + line if line else "#" for line in lines]
    return out


# ---------------------------------------------------------------------------------------------
# Dialing rules


def local_rule(row, long_distance_rule):
    """Local rule of a country: "" where subscribers dial numbers of their own area without the
    area code, the long-distance rule where every number is dialled in full."""
    code = row["calling_code"]
    if not row["national_prefix"]:
        return long_distance_rule      # no trunk prefix: the area code is part of the number
    if code in LOCAL_RULE_OVERRIDES:
        return LOCAL_RULE_OVERRIDES[code]
    if code in TEN_DIGIT_LOCAL:
        return "F"
    if code in OPEN_LOCAL_DIALLING:
        return ""
    return long_distance_rule


def international_prefix(row):
    if row["calling_code"] in CARRIER_AFTER_INTL_PREFIX:
        head = re.match(r"\d*", row["intl_prefix_pattern"]).group(0)
        if head:
            return head
    return row["international_prefix"]


def dialing_rules(facts):
    rows = []
    for row in sorted(facts.countries, key=lambda r: r["iso2"]):
        long_distance = row["national_prefix"] + "F"
        fields = [row["calling_code"], international_prefix(row), "EF", long_distance,
                  local_rule(row, long_distance), property_safe(row["name"]),
                  "P" if row["main_country_for_code"] == "Y" else ""]
        rows.append(row["iso2"] + "=" + ":".join(fields))
    lines = header("Dialing rules of every country, one per ISO 3166 alpha-2 code.",
                   ["countries.tsv"],
                   ["",
                    "Value: calling code:international prefix:international rule:long-distance rule:",
                    "       local rule:name:P (P marks the country returned for its calling code).",
                    "Rules: E puts the calling code, F the prefix then the area code, I the prefix alone;",
                    "the long-distance and local prefixes are what stands before the first F (else I).",
                    "Local rule empty: numbers of the own area are dialled without the area code."])
    return "\n".join(lines + rows) + "\n"


# ---------------------------------------------------------------------------------------------
# Area code trees


def split_sizes(formats, prefix, lengths):
    """Sizes of the first group that the metadata layouts give to numbers beginning with `prefix`
    (one sample per national length and following digit)."""
    sizes = set()
    for length in lengths:
        if length <= len(prefix):
            continue
        for digit in "0123456789":
            sample = (prefix + digit * length)[:length]
            fmt, match = choose_format(formats, sample)
            if fmt is not None:
                sizes.add((len(match.group(1)), "$NP" in fmt.national_prefix_rule))
    return sizes


def split_codes(formats, prefix, lengths):
    """The codes at which the numbers of a listed range are split, as {code: dialled with the
    trunk prefix}.

    The metadata layouts give the split: their first group. A listed prefix longer than the
    first group is cut to it; a prefix one digit shorter is extended to its ten one-digit
    continuations that have numbers; a prefix that falls short by more stays as it is (the
    carrier blocks under it, when there are any, refine it)."""
    sizes = split_sizes(formats, prefix, lengths)
    if not sizes:
        return {prefix: True}
    longest = max(size for size, _ in sizes)
    with_prefix = all(np for _, np in sizes)
    if longest <= len(prefix):
        return {prefix[:longest]: with_prefix}
    children = {}
    for digit in "0123456789":
        child = prefix + digit
        child_sizes = split_sizes(formats, child, lengths)
        if not child_sizes:
            continue
        child_longest = max(size for size, _ in child_sizes)
        if child_longest > len(child):
            return {prefix: with_prefix}
        children[child[:child_longest]] = all(np for _, np in child_sizes)
    return children or {prefix: with_prefix}


def plan_tree(facts, code):
    """The ordered (code, label) list of one plan file."""
    mode = TREE_PLANS[code]
    main = facts.main_by_code[code]
    formats = facts.formats_of(main["iso2"])
    has_trunk_prefix = bool(main["national_prefix"])
    geographic = {}
    for row in facts.area_codes[code]:
        geographic[row["area_code"]] = property_safe(row["place"]) or "area code"

    excluded = NOT_AREA_CODES.get(code, set())
    nongeo = {}
    for row in facts.nongeo.get(code, []):
        prefix = row["prefix"]
        if any(prefix.startswith(x) for x in excluded):
            continue
        if mode == "shadowed" and not any(prefix.startswith(g) and g != prefix for g in geographic):
            continue
        lengths = sorted({int(n) for n in row["national_lengths"].split(",") if n})
        label = property_safe(row["type"].replace(" (carrier range)", ""))
        for split, with_trunk_prefix in split_codes(formats, prefix, lengths).items():
            if has_trunk_prefix and not with_trunk_prefix:
                continue      # dialled without the trunk prefix: never looked up in the tree
            if len(split) < len(prefix) and any(g.startswith(split) for g in geographic):
                split = prefix    # cut back, it would also begin geographic codes: keep it whole
            labels = nongeo.setdefault(split, [])
            if label not in labels:
                labels.append(label)

    listed = set(geographic) | set(nongeo)
    longest = max(len(c) for c in listed)

    def covered(digits):
        """Every number beginning with `digits` meets a longer listed code first."""
        if len(digits) > longest:
            return False
        return all(digits + d in listed or covered(digits + d) for d in "0123456789")

    entries = dict(geographic)
    for split in sorted(nongeo):
        if split in geographic or covered(split):
            continue      # a prefix that is never the longest match adds nothing
        entries[split] = ", ".join(sorted(nongeo[split]))
    return sorted(entries.items())


def plan_file(facts, code):
    entries = plan_tree(facts, code)
    name = ascii_text(facts.main_by_code[code]["name"])
    sources = ["areacodes/%s.tsv" % code]
    if code in facts.nongeo:
        sources.append("areacodes/%s-nongeo.tsv" % code)
    sources.append("formats.tsv")
    geographic = {row["area_code"] for row in facts.area_codes[code]}
    extra = len([c for c, _ in entries if c not in geographic])
    lines = header("Area codes of the %s numbering plan (+%s)." % (name, code), sources,
                   ["",
                    "AC_nnnn: one code each, without the trunk prefix; only the leading digits count,",
                    "the text after them names the place or the kind of range. The indices run from",
                    "AC_0000 without a gap, and every code comes before the longer codes that begin",
                    "with it. %d geographic codes, %d mobile and service prefixes." %
                    (len(entries) - extra, extra)])
    lines.append("Translate=1")
    for index, (digits, label) in enumerate(entries):
        lines.append("AC_%04d=%s %s" % (index, digits, label))
    return "\n".join(lines) + "\n"


# ---------------------------------------------------------------------------------------------
# Colombian operators


def colombian_operators(facts):
    operators = sorted(((row["carrier_code"], property_safe(row["operator"]))
                        for row in facts.carriers_57 if row["carrier_code"] not in NOT_AN_OPERATOR),
                       key=lambda item: item[0])
    lines = header("Colombian long-distance operator (carrier selection) codes.",
                   ["areacodes/57-carriers.tsv"],
                   ["The Colombian dialing strategy reads tz310cnp_57.properties only, never a",
                    "_default file: an installation edits its copy of that file.",
                    "tz310cnp_57_default.properties holds the same lines as the shipped reference.",
                    "",
                    "OP_DEFAULT: the operator dialled after the trunk or international prefix.",
                    "OP_nnnn: the operator codes recognised after the international prefix; only the",
                    "leading digits count. 3 (the former fixed-to-mobile access) is not an operator."],
                   replaced_by_installation_file=False)
    lines.append("OP_DEFAULT=" + OP_DEFAULT)
    for index, (digits, operator) in enumerate(operators):
        lines.append("OP_%04d=%s %s" % (index, digits, operator))
    return "\n".join(lines) + "\n"


# ---------------------------------------------------------------------------------------------
# Masks


def canonical_area_lengths(facts, code, nsn, match, trees):
    """How many leading digits of a national significant number stand in the parentheses of
    its canonical forms; 0 when the trunk prefix stands there ("+33 (0) 123456789").

    A plan gives one form. Without a plan there are two where the country has a trunk prefix:
    "+CC (0) national number" for numbers dialled nationally or with the international prefix,
    and "+CC (first group) rest" for numbers written "+CC 212 ..." (the first group after the
    calling code goes into the parentheses); without a trunk prefix only the second."""
    main = facts.main_by_code[code]
    first_group = len(match.group(1)) if match and match.re.groups > 1 else 0
    if code in trees:
        found = longest_code(trees[code], nsn)
        if found:
            return [len(found)]
        return [{"43": 4, "353": 2}.get(code, 0)]
    if code == "33":
        return [0]                    # the French plan keeps the trunk prefix in parentheses
    if code in ("1", "7", "57"):
        return [3]                    # NPA, ABC code, Colombian zone or mobile prefix
    if code == "41":
        return [2]
    if code == "64":
        return [first_group]
    if not main["national_prefix"]:
        return [first_group]
    return [0, first_group] if first_group else [0]


def subscriber_groups(facts, code, nsn, trees):
    """For each canonical form of `nsn`, the (size, separator) groups of its subscriber part."""
    formats = facts.formats_of(facts.main_by_code[code]["iso2"])
    fmt, match = choose_format([f for f in formats if f.international], nsn)
    return [_groups_after(nsn, fmt, match, area)
            for area in canonical_area_lengths(facts, code, nsn, match, trees)]


def _groups_after(nsn, fmt, match, area):
    if match is None:
        return [(len(nsn) - area, "")]
    bounds = []
    position = 0
    for index in range(1, match.re.groups + 1):
        position += len(match.group(index))
        sep = fmt.separators[index - 1] if index - 1 < len(fmt.separators) else ""
        bounds.append((position, sep))
    groups = []
    start = area
    for position, sep in bounds:
        if position <= area:
            continue
        if position == len(nsn):
            groups.append((position - start, ""))
        elif sep:
            groups.append((position - start, sep))
        else:
            continue                  # groups written together are one group
        start = position
    return groups


def area_samples(facts, code, trees):
    """One geographic number for each length of area code in a plan's tree: the subscriber part
    of the canonical form is as long as the national number minus the area code."""
    main = facts.main_by_code[code]
    formats = [f for f in facts.formats_of(main["iso2"]) if f.international]
    lengths = sorted({int(n) for n in main["fixed_lengths"].split(",") if n}, reverse=True)
    geographic = sorted(row["area_code"] for row in facts.area_codes[code])
    samples = []
    for size in sorted({len(c) for c in geographic}):
        found = None
        for area in (c for c in geographic if len(c) == size):
            for length in lengths:
                for digit in "23456789":
                    nsn = (area + digit * length)[:length]
                    if len(nsn) <= len(area) or choose_format(formats, nsn)[0] is None:
                        continue
                    if longest_code(trees[code], nsn) == area:
                        found = nsn
                        break
                if found:
                    break
            if found:
                break
        if found:
            samples.append(found)
    return samples


def longest_code(tree, nsn):
    found = ""
    for candidate, _ in tree:
        if nsn.startswith(candidate) and len(candidate) > len(found):
            found = candidate
    return found


def mask_for(facts, code, trees):
    main = facts.main_by_code[code]
    numbers = []
    for column in ("fixed_example", "mobile_example"):
        if not main[column]:
            continue
        if code == "54" and column == "mobile_example":
            continue      # written "+54 9 (...)": the mask of "54" never sees it
        numbers.append(main[column])
    if code in trees:
        numbers += area_samples(facts, code, trees)
    samples = [groups for nsn in numbers for groups in subscriber_groups(facts, code, nsn, trees)]
    if not samples:
        return "+C (A) x"
    common = []
    for index in range(min(len(s) for s in samples) - 1):
        if all(s[index] == samples[0][index] for s in samples):
            common.append(samples[0][index])
        else:
            break
    rest = min(sum(size for size, _ in s[len(common):]) for s in samples)
    body = "".join("x" * size + sep for size, sep in common) + "x" * max(rest, 1)
    return "+C (A) " + body


def masks(facts, trees):
    codes = sorted(facts.main_by_code)
    rows = ["Mask_%s_1=%s" % (code, mask_for(facts, code, trees)) for code in codes]
    rows.sort()
    lines = header("Display masks, one per calling code.", ["countries.tsv", "formats.tsv"],
                   ["",
                    "C: calling code; A: what stands in the parentheses (area code or trunk prefix);",
                    "x: one digit of the subscriber part; other characters are written as they are.",
                    "Digits the mask does not place are appended after it."])
    return "\n".join(lines + rows) + "\n"


def activation():
    lines = header("Specific number formats (country numbering plans) switched on.",
                   ["the calling codes that have a plan"])
    rows = sorted("cnp_%s=on" % code for code in PLAN_CODES)
    return "\n".join(lines + rows) + "\n"


# ---------------------------------------------------------------------------------------------
# Example numbers (the input set of the tests and benchmarks that run on the shipped world)


def example_numbers(facts):
    rows = ["iso2\tcalling_code\tnational_prefix\tinternational_prefix\tfixed_example\tmobile_example"]
    for row in sorted(facts.countries, key=lambda r: r["iso2"]):
        rows.append("\t".join([row["iso2"], row["calling_code"], row["national_prefix"], international_prefix(row),
                               row["fixed_example"], row["mobile_example"]]))
    return "\n".join(rows) + "\n"


def sample_numbers(facts):
    """The sample that `numbering diff` converts when given no numbers: each country's example
    numbers in "+" form, then as dialled inside the country (behind its national prefix)."""
    examples = [(row, row[kind]) for row in sorted(facts.countries, key=lambda r: r["iso2"])
                for kind in ("fixed_example", "mobile_example") if row[kind]]
    numbers = ["+%s %s" % (row["calling_code"], example) for row, example in examples]
    numbers += [row["national_prefix"] + example for row, example in examples]
    return "\n".join(dict.fromkeys(numbers)) + "\n"


# ---------------------------------------------------------------------------------------------
# Driver


def generate(facts_dir):
    facts = Facts(facts_dir)
    trees = {code: plan_tree(facts, code) for code in TREE_PLANS}
    files = {
        "dialingrules_default.properties": dialing_rules(facts),
        "dlr_cnp_mask_default.properties": masks(facts, trees),
        "specific_format_activation_default.properties": activation(),
    }
    for code in TREE_PLANS:
        files["tz310cnp_%s_default.properties" % code] = plan_file(facts, code)
    operators = colombian_operators(facts)
    files["tz310cnp_57.properties"] = operators
    files["tz310cnp_57_default.properties"] = operators
    files["example_numbers.tsv"] = example_numbers(facts)
    files["sample_numbers.txt"] = sample_numbers(facts)
    return files


def write_files(files, out_dir):
    out_dir = Path(out_dir)
    out_dir.mkdir(parents=True, exist_ok=True)
    for name in sorted(files):
        with open(out_dir / name, "w", encoding="ascii", newline="\n") as handle:
            handle.write(files[name])


GENERATED_NAME = re.compile(r"^((dialingrules|dlr_cnp_mask|specific_format_activation|tz310cnp_\d+)"
                            r"(_default)?\.properties|example_numbers\.tsv|sample_numbers\.txt)$")


def check(files, out_dir):
    """Regenerates into a temporary directory and compares; returns the list of problems."""
    out_dir = Path(out_dir)
    problems = []
    with tempfile.TemporaryDirectory() as tmp:
        write_files(files, tmp)
        for name in sorted(files):
            committed = out_dir / name
            if not committed.is_file():
                problems.append("missing: " + str(committed))
            elif not filecmp.cmp(committed, Path(tmp) / name, shallow=False):
                problems.append("differs: " + str(committed))
    if out_dir.is_dir():
        for name in sorted(os.listdir(out_dir)):
            if GENERATED_NAME.match(name) and name not in files:
                problems.append("not generated: " + str(out_dir / name))
    return problems


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--facts", default=str(DEFAULT_FACTS), help="numbering facts directory")
    parser.add_argument("--out", default=str(DEFAULT_OUT), help="directory of the property files")
    parser.add_argument("--check", action="store_true",
                        help="do not write; exit 1 when the files in --out differ from the facts")
    args = parser.parse_args(argv)
    if not (Path(args.facts) / "countries.tsv").is_file():
        print("numbering facts not found in " + args.facts, file=sys.stderr)
        return 2
    files = generate(args.facts)
    if args.check:
        problems = check(files, args.out)
        for problem in problems:
            print(problem)
        if problems:
            print("stale configuration: run python3 " + GENERATOR, file=sys.stderr)
            return 1
        print("%d files up to date in %s" % (len(files), args.out))
        return 0
    write_files(files, args.out)
    print("%d files written to %s" % (len(files), args.out))
    return 0


if __name__ == "__main__":
    sys.exit(main())
