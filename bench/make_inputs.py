#!/usr/bin/env python3
"""Writes bench/inputs.tsv, the fixed input set of the benchmarks, from data/example_numbers.tsv.

    python3 bench/make_inputs.py            # rewrite bench/inputs.tsv
    python3 bench/make_inputs.py --check    # exit 1 when bench/inputs.tsv is not what it would write

One installation per country of COUNTRIES (country plans and generic rules mixed), each with what
its users type: national numbers (fixed and mobile, with the national prefix), international
numbers (behind the international prefix, and in "+" form for another country and the own one),
a local number (the subscriber number of the installation's own area) and service codes. The
"coldstart" rows give one national number for every country that has a numbering plan: the cold
start benchmarks convert one of each to load every plan.

Columns: country, outside-line prefix, local number length, own area code (the installation's
KesDialRulesItem), kind, number as typed. The output depends on the example numbers only.
"""

import argparse
import csv
import sys
from pathlib import Path

PROJECT_ROOT = Path(__file__).resolve().parent.parent
EXAMPLES = PROJECT_ROOT / "data" / "example_numbers.tsv"
OUTPUT = PROJECT_ROOT / "bench" / "inputs.tsv"

# The measured installations: eight countries with a numbering plan, four on the generic rules.
COUNTRIES = ["FR", "DE", "GB", "US", "AT", "NL", "CH", "AU", "IT", "ES", "SE", "JP"]
# One installation in each country that has a numbering plan, for the cold start.
PLAN_COUNTRIES = ["US", "NL", "BE", "FR", "CH", "AT", "GB", "DE", "MX", "AR", "CO", "AU", "NZ", "RU", "IE"]

# The prefix that seizes an outside line: "0" in most of Europe, "9" where "0" reaches the operator.
OUTSIDE_LINE_PREFIX = {"US": "9", "GB": "9", "AU": "0", "JP": "0"}
# Internal extensions have up to three digits.
LOCAL_LENGTH = 4
# Area code lengths of the example fixed numbers in the countries without an area code file.
AREA_CODE_LENGTH = {"FR": 1, "US": 3, "CH": 2, "SE": 1, "JP": 1, "IT": 2, "ES": 0, "AU": 1,
                    "BE": 1, "MX": 2, "CO": 3, "NZ": 1, "RU": 3, "CA": 3}


def read_examples():
    with open(EXAMPLES, newline="", encoding="utf-8") as source:
        return {row["iso2"]: row for row in csv.DictReader(source, delimiter="\t")}


def area_codes_of(calling_code):
    """The area codes of the country's plan file, or an empty set."""
    path = PROJECT_ROOT / "data" / f"tz310cnp_{calling_code}_default.properties"
    codes = set()
    if not path.exists():
        return codes
    for line in path.read_text(encoding="utf-8").splitlines():
        key, _, value = line.partition("=")
        if key.strip().startswith("AC_"):
            digits = ""
            for c in value.strip():
                if not c.isdigit():
                    break
                digits += c
            if digits:
                codes.add(digits)
    return codes


def own_area_code(country, example):
    fixed = example["fixed_example"]
    codes = area_codes_of(example["calling_code"])
    if codes:
        matches = [code for code in codes if fixed.startswith(code)]
        return max(matches, key=len) if matches else ""
    return fixed[:AREA_CODE_LENGTH.get(country, 0)]


def international_form(country, example, national):
    """"+", the calling code, the area code (a mobile number's first three digits) and the rest."""
    if national == example["fixed_example"]:
        area = own_area_code(country, example)
    else:
        area = national[:3]
    parts = ["+" + example["calling_code"], area, grouped(national[len(area):])]
    return " ".join(part for part in parts if part)


def grouped(digits, size=3):
    """Digits in groups of `size` separated by blanks, as people write them."""
    return " ".join(digits[i:i + size] for i in range(0, len(digits), size))


def rows_for(country, examples):
    example = examples[country]
    national_prefix = example["national_prefix"]
    international_prefix = example["international_prefix"]
    fixed = example["fixed_example"]
    mobile = example["mobile_example"]
    area = own_area_code(country, example)
    # The next measured country is the destination of the international numbers.
    other_country = COUNTRIES[(COUNTRIES.index(country) + 1) % len(COUNTRIES)]
    other = examples[other_country]
    local = fixed[len(area):]
    return [
        ("national", national_prefix + fixed),
        ("national", national_prefix + mobile[:3] + " " + grouped(mobile[3:])),
        ("international", international_prefix + " " + other["calling_code"] + " " + other["fixed_example"]),
        ("international", international_form(other_country, other, other["mobile_example"])),
        ("international", international_form(country, example, fixed)),
        ("local", local),
        ("service", "*21#"),
        ("service", "#31#" + national_prefix + fixed),
    ], area


def installation(country, area):
    return [country, OUTSIDE_LINE_PREFIX.get(country, "0"), str(LOCAL_LENGTH), area]


def table(examples):
    lines = ["country\toutside_line_prefix\tlocal_length\tarea_code\tkind\tnumber"]
    for country in COUNTRIES:
        rows, area = rows_for(country, examples)
        for kind, number in rows:
            lines.append("\t".join(installation(country, area) + [kind, number]))
    for country in PLAN_COUNTRIES:
        example = examples[country]
        area = own_area_code(country, example)
        number = example["national_prefix"] + example["fixed_example"]
        lines.append("\t".join(installation(country, area) + ["coldstart", number]))
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="only compare with bench/inputs.tsv")
    arguments = parser.parse_args()
    text = table(read_examples())
    if arguments.check:
        current = OUTPUT.read_text(encoding="utf-8") if OUTPUT.exists() else ""
        if current != text:
            print(f"{OUTPUT} is stale: run python3 bench/make_inputs.py", file=sys.stderr)
            return 1
        return 0
    OUTPUT.write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
