#!/usr/bin/env python3
"""Checks the shipped default configuration (data/) and its generator.

The committed files are read the way the library reads them (property lines, rule fields,
area code tree, mask walk, canonical decomposition), so a file that would make the library
misbehave fails here. The generator runs on the numbering facts of facts/.

    python3 tools/test_generate_config.py [-v]
"""

import re
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import generate_config as gen  # noqa: E402

DATA = gen.DEFAULT_OUT
FACTS = gen.DEFAULT_FACTS

PLAN_CODES = set(gen.PLAN_CODES)
TREE_FILES = set(gen.TREE_PLANS)


# ---------------------------------------------------------------------------------------------
# How the library reads and uses the files


def read_properties(path):
    """key -> value as the property reader gives them (comments skipped, key and value trimmed,
    the first "=" or ":" ends the key)."""
    result = {}
    with open(path, encoding="ascii") as handle:
        for line in handle:
            stripped = line.strip()
            if not stripped or stripped[0] in "#!":
                continue
            match = re.match(r"([^=:]*)[=:](.*)$", stripped)
            key, value = (match.group(1), match.group(2)) if match else (stripped, "")
            result[key.strip()] = value.strip()
    return result


def leading_digits(value):
    return re.match(r"\d*", value).group(0)


def rule_prefix(rule):
    """The prefix of a long-distance or local rule: before the first F, else before the first I."""
    for letter in "FI":
        if letter in rule:
            return rule[: rule.index(letter)]
    return ""


def merge_prefix(result, prefix):
    for i, ch in enumerate(prefix):
        if i >= len(result) or result[i] != ch:
            result = result[:i] + ch + result[i:]
    return result


def dial_with_rule(rule, prefix, area, number):
    """The generic long-distance / local dialling of the rule letters."""
    result = number
    if not rule:
        return result
    if "F" in rule:
        result = area + result
    if "F" in rule or "I" in rule:
        result = merge_prefix(result, prefix)
    return result


class AreaCodeTree:
    """The area code tree: a code is flagged only when its whole digit string was not already a
    path, so a longer code beginning with it blocks it."""

    def __init__(self):
        self.paths = set()
        self.codes = set()

    def insert(self, digits):
        if not digits:
            raise ValueError("strDigits empty")
        if digits in self.paths:
            return False
        for end in range(1, len(digits) + 1):
            self.paths.add(digits[:end])
        self.codes.add(digits)
        return True

    def extract(self, number):
        for end in range(len(number), 0, -1):
            if number[:end] in self.codes:
                return number[:end]
        return ""


def format_canonical(number, pattern, national_prefix):
    """The mask walk of the canonical number formatting."""
    if "(" not in number or ")" not in number:
        return number
    cc_part = number[1:number.index(" ")] if " " in number else number[1:]
    opening = number.index("(")
    closing = number.index(")", opening)
    area_part = number[opening + 1:closing]
    pos = closing + 2
    out = []
    for ch in pattern:
        if ch == "C":
            out.append(cc_part)
        elif ch == "A":
            out.append(area_part)
        elif ch == "a":
            if area_part and area_part != national_prefix:
                out.append(area_part)
        elif ch == "x":
            if pos < len(number):
                if number[pos] != " ":
                    out.append(number[pos])
                pos += 1
        else:
            out.append(ch)
    if pos < len(number):
        out.append(number[pos:])
    return "".join(out)


def decompose(canonical):
    """Country number, area code or national prefix, subscriber digits of a canonical number."""
    country = re.match(r"\+(\d*)", canonical)
    country = country.group(1) if country else ""
    opening, closing = canonical.find("("), canonical.find(")")
    area = canonical[opening + 1:closing] if opening > 0 and opening + 1 < closing else ""
    p = closing if closing >= 0 else canonical.find(" ")
    rest = canonical[p + 1:] if p >= 0 else ""
    first_digit = re.search(r"\d", rest)
    subscriber = re.sub(r"\D", "", rest[first_digit.start():]) if first_digit else ""
    return country, area, subscriber


def load_tree(code):
    props = read_properties(DATA / ("tz310cnp_%s_default.properties" % code))
    tree = AreaCodeTree()
    index = 0
    while "AC_%04d" % index in props:
        tree.insert(leading_digits(props["AC_%04d" % index]))
        index += 1
    return tree


def dialing_rules():
    return read_properties(DATA / "dialingrules_default.properties")


def masks():
    return read_properties(DATA / "dlr_cnp_mask_default.properties")


# ---------------------------------------------------------------------------------------------


class DialingRulesFile(unittest.TestCase):
    def setUp(self):
        self.rules = dialing_rules()
        self.fields = {key: value.split(":") for key, value in self.rules.items()}

    def test_one_row_per_country_keyed_by_alpha2(self):
        self.assertEqual(len(self.rules), 245)
        for key in self.rules:
            self.assertRegex(key, r"^[A-Z]{2}$")

    def test_every_value_has_seven_well_formed_fields(self):
        for key, fields in self.fields.items():
            with self.subTest(country=key):
                self.assertEqual(len(fields), 7, self.rules[key])
                number, intl, intl_rule, long_distance, local, name, primary = fields
                self.assertRegex(number, r"^\d{1,3}$")
                self.assertRegex(intl, r"^\d+$")
                self.assertEqual(intl_rule, "EF")
                self.assertRegex(long_distance, r"^\d*F$")
                self.assertRegex(local, r"^(\d*F)?$")
                self.assertIn(primary, {"", "P"})
                self.assertTrue(name)
                self.assertRegex(name, r"^[ -~]+$")
                for forbidden in ("\\", "=", "#", "!", "${"):
                    self.assertNotIn(forbidden, name)
                self.assertEqual(name, name.strip())

    def test_names_are_unique(self):
        names = [fields[5] for fields in self.fields.values()]
        self.assertEqual(len(names), len(set(names)))

    def test_exactly_one_primary_country_per_calling_code(self):
        primaries = {}
        numbers = set()
        for key, fields in self.fields.items():
            numbers.add(fields[0])
            if fields[6] == "P":
                self.assertNotIn(fields[0], primaries, key)
                primaries[fields[0]] = key
        self.assertEqual(set(primaries), numbers)
        self.assertEqual(len(numbers), 206)
        for number, country in [("1", "US"), ("7", "RU"), ("44", "GB"), ("61", "AU"), ("39", "IT"),
                                ("358", "FI"), ("262", "RE"), ("47", "NO"), ("290", "SH")]:
            self.assertEqual(primaries[number], country)

    def test_known_rows(self):
        table = {
            "FR": "33:00:EF:0F:0F:France:P",
            "DE": "49:00:EF:0F::Germany:P",
            "US": "1:011:EF:1F:F:United States:P",
            "CA": "1:011:EF:1F:F:Canada:",
            "IT": "39:00:EF:F:F:Italy:P",
            "RU": "7:810:EF:8F:8F:Russian Federation:P",
            "KZ": "7:810:EF:8F:8F:Kazakhstan:",
            "AU": "61:0011:EF:0F::Australia:P",
            "MX": "52:00:EF:F:F:Mexico:P",
            "AR": "54:00:EF:0F::Argentina:P",
            "CO": "57:00:EF:0F:60F:Colombia:P",
            "HU": "36:00:EF:06F:06F:Hungary:P",
            "CI": "225:00:EF:F:F:Cote d'Ivoire:P",
        }
        for key, value in table.items():
            with self.subTest(country=key):
                self.assertEqual(self.rules[key], value)

    def test_plans_find_the_rows_they_look_up(self):
        for plan in gen.PLANS:
            if plan["looks_up_country"] == "yes":
                self.assertIn(plan["country"], self.rules)

    def test_long_distance_dialling_keeps_the_area_code(self):
        # "+CC (23) 4567890" dialled inside its country: trunk prefix, area code, number.
        for key, fields in self.fields.items():
            with self.subTest(country=key):
                long_distance = fields[3]
                prefix = rule_prefix(long_distance)
                self.assertEqual(dial_with_rule(long_distance, prefix, "23", "4567890"),
                                 prefix + "234567890")

    def test_local_dialling(self):
        # Own-area number: in full where the plan is closed, without area code where it is open.
        table = {"FR": "0234567890", "BE": "0234567890", "CH": "0234567890", "IT": "234567890",
                 "DE": "4567890", "GB": "4567890", "AU": "4567890", "US": "234567890",
                 "RU": "8234567890", "NZ": "0234567890", "CO": "60234567890"}
        for key, expected in table.items():
            with self.subTest(country=key):
                local = self.fields[key][4]
                self.assertEqual(dial_with_rule(local, rule_prefix(local), "23", "4567890"), expected)

    def test_without_trunk_prefix_every_number_counts_as_national(self):
        # With no trunk prefix, a typed number is national only when both rules are the same.
        for key, fields in self.fields.items():
            if rule_prefix(fields[3]) == "":
                with self.subTest(country=key):
                    self.assertEqual(fields[3], fields[4])


class MasksFile(unittest.TestCase):
    SUBSCRIBERS = ["1234", "1234567", "12345678", "123456789", "1234567890", "123456789012"]

    def setUp(self):
        self.masks = masks()
        self.rules = dialing_rules()
        self.prefix_of = {}
        for value in self.rules.values():
            fields = value.split(":")
            if fields[6] == "P":
                self.prefix_of[fields[0]] = rule_prefix(fields[3])

    def mask(self, code):
        return self.masks["Mask_%s_1" % code]

    def test_every_calling_code_has_exactly_one_mask(self):
        codes = set()
        for key, value in self.masks.items():
            match = re.match(r"^Mask_(\d{1,3})_1$", key)
            self.assertTrue(match, key)
            self.assertTrue(value)
            codes.add(match.group(1))
        self.assertEqual(codes, set(self.prefix_of))
        self.assertEqual(len(codes), 206)

    def test_masks_use_only_known_letters(self):
        for key, value in self.masks.items():
            with self.subTest(mask=key):
                self.assertRegex(value, r"^\+C \(A\) x[x .-]*$")
                self.assertTrue(value.endswith("x"))

    def test_formatted_numbers_keep_every_part(self):
        # The formatted number must still split into the same country, area and digits, and
        # read "+CC (area) digits" with a blank after the country and after the ")".
        for code, national_prefix in sorted(self.prefix_of.items()):
            mask = self.mask(code)
            areas = ["23", "4"] + ([national_prefix] if national_prefix else [])
            for area in areas:
                for subscriber in self.SUBSCRIBERS:
                    canonical = "+%s (%s) %s" % (code, area, subscriber)
                    with self.subTest(number=canonical, mask=mask):
                        result = format_canonical(canonical, mask, national_prefix)
                        self.assertEqual(decompose(result), (code, area, subscriber))
                        self.assertTrue(result.startswith("+%s (%s) %s" % (code, area, subscriber[0])))
                        self.assertEqual(re.sub(r"\D", "", result), code + area + subscriber)

    def test_separators_stand_between_digits(self):
        # A subscriber part at least as long as the mask: no separator doubled or left at the end.
        for code in self.prefix_of:
            mask = self.mask(code)
            for extra in (0, 1, 3):
                canonical = "+%s (1) %s" % (code, "5" * (mask.count("x") + extra))
                with self.subTest(mask=mask, extra=extra):
                    result = format_canonical(canonical, mask, "")
                    self.assertRegex(result, r"\d$")
                    self.assertNotRegex(result[result.index(")"):], r"[ .-]{2}")

    def test_layouts(self):
        table = [
            ("+33 (0) 123456789", "+33 (0) 1 23 45 67 89"),
            ("+33 (0) 612345678", "+33 (0) 6 12 34 56 78"),
            ("+33 (1) 23456789", "+33 (1) 2 34 56 78 9"),
            ("+1 (212) 5551234", "+1 (212) 555-1234"),
            ("+7 (495) 1234567", "+7 (495) 123-45-67"),
            ("+41 (44) 1234567", "+41 (44) 123 45 67"),
            ("+64 (21) 1234567", "+64 (21) 123 4567"),
            ("+49 (89) 1234567", "+49 (89) 1234567"),
            ("+44 (0) 7400123456", "+44 (0) 7400123456"),
            ("+34 (912) 345678", "+34 (912) 34 56 78"),
            ("+41 800123456", "+41 800123456"),
        ]
        for canonical, expected in table:
            code = canonical[1:canonical.index(" ")]
            with self.subTest(number=canonical):
                self.assertEqual(format_canonical(canonical, self.mask(code), self.prefix_of[code]),
                                 expected)


class ActivationFile(unittest.TestCase):
    def test_every_plan_is_switched_on(self):
        props = read_properties(DATA / "specific_format_activation_default.properties")
        self.assertEqual({key[len("cnp_"):] for key in props}, PLAN_CODES)
        for key, value in props.items():
            self.assertTrue(key.startswith("cnp_"))
            self.assertIn(value.lower(), {"true", "on", "1"})

    def test_every_switch_names_a_known_calling_code(self):
        numbers = {value.split(":")[0] for value in dialing_rules().values()}
        self.assertTrue(PLAN_CODES <= numbers)


class PlanFiles(unittest.TestCase):
    def entries(self, code):
        props = read_properties(DATA / ("tz310cnp_%s_default.properties" % code))
        index = 0
        values = []
        while "AC_%04d" % index in props:
            values.append(props["AC_%04d" % index])
            index += 1
        return props, values

    def test_translate_and_consecutive_keys(self):
        for code in TREE_FILES:
            with self.subTest(plan=code):
                props, values = self.entries(code)
                self.assertEqual(props.get("Translate"), "1")
                ac_keys = [k for k in props if k.startswith("AC_")]
                self.assertEqual(len(ac_keys), len(values), "gap in the AC_ indices")
                self.assertLessEqual(len(values), 9999)
                self.assertEqual(set(props) - set(ac_keys), {"Translate"})

    def test_every_code_is_taken_by_the_tree(self):
        # A code placed after a longer code that begins with it is never flagged.
        for code in TREE_FILES:
            with self.subTest(plan=code):
                _, values = self.entries(code)
                tree = AreaCodeTree()
                for value in values:
                    digits = leading_digits(value)
                    self.assertTrue(digits, value)
                    self.assertTrue(tree.insert(digits), "%s blocked or repeated" % value)

    def test_longest_code_stays_that_of_the_geographic_codes(self):
        # The German and Austrian plans leave national numbers shorter than the longest code alone.
        for code, longest in (("49", 5), ("43", 4)):
            _, values = self.entries(code)
            self.assertEqual(max(len(leading_digits(v)) for v in values), longest)

    def test_area_codes_found_in_national_numbers(self):
        table = {
            "49": [("301234567", "30"), ("1701234567", "170"), ("15112345678", "1511"),
                   ("212912345", "2129"), ("2121234567", "212"), ("6211234567", "621"),
                   ("8001234567", "800"), ("1801234567", "180"), ("16012345678", "160"),
                   ("9001234567", "900")],
            "43": [("11234567", "1"), ("6641234567", "664"), ("6991234567", "699"),
                   ("64851234567", "6485"), ("64831234", "6483"), ("800123456", "800"),
                   ("5012345", "50"), ("3161234567", "316")],
            "32": [("42123456", "4"), ("470123456", "470"), ("499123456", "499"), ("92123456", "9"),
                   ("90012345", "900"), ("80123456", "80"), ("80012345", "800"), ("21234567", "2"),
                   ("70123456", ""), ("78123456", "")],
            "44": [("2079460000", "20"), ("1387312345", "13873"), ("1387212345", "1387"),
                   ("1212345678", "121"), ("7400123456", ""), ("8001234567", "")],
            "31": [("201234567", "20"), ("591234567", "591"), ("612345678", "")],
            "353": [("11234567", "1"), ("214123456", "21"), ("402123456", "402"), ("871234567", ""),
                    ("1800123456", "1")],
            "61": [("212345678", "2"), ("812345678", "8"), ("412345678", "")],
            "54": [("1143215678", "11"), ("3514123456", "351"), ("3435456789", "3435"),
                   ("8001234567", "800"), ("6001234567", "600"), ("91143215678", "")],
            "52": [("5512345678", "55"), ("2221234567", "222"), ("8001234567", "800"),
                   ("9001234567", "900")],
        }
        for code, cases in table.items():
            tree = load_tree(code)
            for national, expected in cases:
                with self.subTest(plan=code, number=national):
                    self.assertEqual(tree.extract(national), expected)


class ColombianOperators(unittest.TestCase):
    def read(self, name):
        props = read_properties(DATA / name)
        codes = []
        index = 0
        while "OP_%04d" % index in props:
            codes.append(leading_digits(props["OP_%04d" % index]))
            index += 1
        return props, codes

    def test_installation_name_and_default_name_agree(self):
        installed = (DATA / "tz310cnp_57.properties").read_bytes()
        self.assertEqual(installed, (DATA / "tz310cnp_57_default.properties").read_bytes())

    def test_operator_list(self):
        props, codes = self.read("tz310cnp_57.properties")
        self.assertEqual(sorted(codes, key=int), ["5", "7", "9", "414", "444", "456"])
        self.assertEqual(len([k for k in props if k.startswith("OP_0")]), len(codes))
        # The default operator is used as it is written, not cut to its digits.
        self.assertRegex(props["OP_DEFAULT"], r"^\d+$")
        self.assertIn(props["OP_DEFAULT"], codes)

    def test_operator_prefix_of_a_number(self):
        _, codes = self.read("tz310cnp_57.properties")
        tree = AreaCodeTree()
        for digits in codes:
            self.assertTrue(tree.insert(digits))
        for number, expected in [("5", "5"), ("512", "5"), ("4561234", "456"), ("4", ""),
                                 ("3001234567", ""), ("9", "9")]:
            self.assertEqual(tree.extract(number), expected, number)

    def test_international_prefix_leaves_room_for_the_operator(self):
        fields = dialing_rules()["CO"].split(":")
        self.assertEqual(fields[1], "00")


class TextHelpers(unittest.TestCase):
    def test_property_safe(self):
        table = [
            ("C\u00f4te d'Ivoire", "Cote d'Ivoire"),
            ("\u00c5land Islands", "Aland Islands"),
            ("Cura\u00e7ao", "Curacao"),
            ("T\u00fcrkiye", "Turkiye"),
            ("Stra\u00dfe", "Strasse"),
            ("A: B", "A - B"),
            ("a=b#c!d\\e", "a-bNo.cd/e"),
            ("  many   blanks ", "many blanks"),
            ("x${y}", "x$ {y}"),
        ]
        for text, expected in table:
            self.assertEqual(gen.property_safe(text), expected)

    def test_layout_separators(self):
        table = [("$1 $2-$3", 3, [" ", "-"]), ("$1.$2.$3", 3, [".", "."]), ("$1$2", 2, [""]),
                 ("($1) $2-$3", 3, [" ", "-"]), ("$1", 1, [])]
        for layout, groups, expected in table:
            self.assertEqual(gen._separators(layout, groups), expected, layout)


FORMAT_HEADER = ["region", "calling_code", "leading_digits", "leading_digits_last", "pattern",
                 "format", "intl_format", "national_prefix_formatting_rule",
                 "national_prefix_optional", "carrier_code_formatting_rule"]
COUNTRY_HEADER = ["iso2", "calling_code", "main_country_for_code", "international_prefix",
                  "intl_prefix_source", "intl_prefix_pattern", "preferred_intl_prefix",
                  "national_prefix", "national_prefix_for_parsing",
                  "national_prefix_transform_rule", "name", "fixed_example", "mobile_example",
                  "fixed_lengths", "mobile_lengths"]
NONGEO_HEADER = ["prefix", "type", "name", "region", "national_lengths", "source"]


class TreeDerivation(unittest.TestCase):
    """Which non-geographic prefixes a plan file receives, on small invented facts."""

    def make_facts(self, code, national_prefix, formats, geographic, nongeo):
        directory = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, directory)
        (directory / "areacodes").mkdir()

        def write(path, header, rows):
            with open(path, "w", encoding="utf-8") as handle:
                handle.write("\t".join(header) + "\n")
                for row in rows:
                    handle.write("\t".join(row) + "\n")

        write(directory / "countries.tsv", COUNTRY_HEADER,
              [["ZZ", code, "Y", "00", "plain", "00", "", national_prefix, "", "", "Testland",
                "21234567", "470123456", "8", "9"]])
        write(directory / "formats.tsv", FORMAT_HEADER,
              [["ZZ", code, leading, "", pattern, layout, "", rule, "", ""]
               for leading, pattern, layout, rule in formats])
        write(directory / "formats_inherited.tsv", ["region", "calling_code", "uses_formats_of"], [])
        write(directory / "areacodes" / ("%s.tsv" % code), ["area_code", "place", "note"],
              [[c, "Place " + c, ""] for c in geographic])
        write(directory / "areacodes" / ("%s-nongeo.tsv" % code), NONGEO_HEADER,
              [[p, t, "", "ZZ", lengths, source] for p, t, lengths, source in nongeo])
        write(directory / "areacodes" / "57-carriers.tsv",
              ["carrier_code", "operator", "national_form_before_2021", "international_form", "note"],
              [])
        return gen.Facts(directory)

    def codes(self, facts, code):
        return [digits for digits, _ in gen.plan_tree(facts, code)]

    def test_mobile_ranges_under_a_short_area_code_are_listed(self):
        facts = self.make_facts(
            "32", "0",
            formats=[("4[23]", r"(\d)(\d{3})(\d{4})", "$1 $2 $3", "$NP$FG"),
                     ("4", r"(\d{3})(\d{3})(\d{3})", "$1 $2 $3", "$NP$FG"),
                     ("7", r"(\d{2})(\d{6})", "$1 $2", "$NP$FG"),
                     ("1", r"(\d{4})(\d{4})", "$1 $2", "")],
            geographic=["4", "2", "12"],
            nongeo=[("47", "mobile", "9", "metadata"), ("7", "premium rate", "8", "metadata"),
                    ("470", "mobile (carrier range)", "9", "carrier"),
                    ("1800", "toll free", "8", "metadata")])
        codes = self.codes(facts, "32")
        # 47 splits at three digits: its ten continuations; 7 lies under no area code; 1800 has
        # no area code in front of it; the carrier block adds nothing.
        self.assertEqual(codes, ["12", "2", "4"] + ["47%d" % d for d in range(10)])

    def test_ranges_dialled_without_trunk_prefix_stay_out(self):
        facts = self.make_facts(
            "32", "0",
            formats=[("1", r"(\d{4})(\d{4})", "$1 $2", ""),
                     ("[2-9]", r"(\d)(\d{3})(\d{4})", "$1 $2 $3", "$NP$FG")],
            geographic=["1", "2"],
            nongeo=[("18", "toll free", "8", "metadata")])
        self.assertEqual(self.codes(facts, "32"), ["1", "2"])

    def test_all_ranges_of_a_plan_without_neutral_form(self):
        facts = self.make_facts(
            "49", "0",
            formats=[("1[67]", r"(\d{3})(\d{7,8})", "$1 $2", "$NP$FG"),
                     ("15", r"(\d{5})(\d{6})", "$1 $2", "$NP$FG"),
                     ("13", r"(\d{3})(\d{4,5})", "$1 $2", "$NP$FG"),
                     ("[2-9]", r"(\d{2,4})(\d{5,8})", "$1 $2", "$NP$FG")],
            geographic=["30", "89", "2129"],
            nongeo=[("17", "mobile", "10,11", "metadata"),          # one digit short: 170-179
                    ("15", "mobile", "11", "metadata"),             # three short: stays 15
                    ("1511", "mobile (carrier range)", "11", "carrier"),  # one short: 15110-15119
                    ("1371", "shared cost", "8", "metadata"),       # longer than the split: 137
                    ("1372", "shared cost", "8", "metadata"),
                    ("160", "mobile", "10,11", "metadata")])
        codes = self.codes(facts, "49")
        expected = (["137", "15"] + ["1511%d" % d for d in range(10)] + ["160"]
                    + ["17%d" % d for d in range(10)] + ["2129", "30", "89"])
        self.assertEqual(codes, expected)

    def test_a_prefix_covered_by_all_its_continuations_is_dropped(self):
        facts = self.make_facts(
            "43", "0",
            formats=[("6", r"(\d{3})(\d{6})", "$1 $2", "$NP$FG"),
                     ("[1-5]", r"(\d)(\d{7})", "$1 $2", "$NP$FG")],
            geographic=["1"],
            nongeo=[("6", "mobile", "9", "metadata")] +
                   [("6%d" % d, "mobile (carrier range)", "9", "carrier") for d in range(10)])
        codes = self.codes(facts, "43")
        self.assertNotIn("6", codes)
        self.assertEqual(codes, ["1"] + ["6%d%d" % (a, b) for a in range(10) for b in range(10)])


class GeneratorOnFacts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.files = gen.generate(FACTS)
        cls.facts = gen.Facts(FACTS)

    def test_committed_files_are_up_to_date(self):
        self.assertEqual(gen.check(self.files, DATA), [])

    def test_output_is_reproducible(self):
        self.assertEqual(gen.generate(FACTS), self.files)

    def test_output_is_plain_ascii(self):
        for name, text in self.files.items():
            with self.subTest(file=name):
                self.assertRegex(text, r"^[\t\n -~]*$")
                self.assertTrue(text.endswith("\n"))

    def test_every_geographic_code_of_the_facts_is_listed(self):
        for code in TREE_FILES:
            with self.subTest(plan=code):
                listed = {leading_digits(v) for k, v in read_properties(
                    DATA / ("tz310cnp_%s_default.properties" % code)).items() if k.startswith("AC_")}
                facts = {row["area_code"] for row in self.facts.area_codes[code]}
                self.assertEqual(facts - listed, set())

    def test_check_reports_stale_missing_and_foreign_files(self):
        directory = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, directory)
        gen.write_files(self.files, directory)
        self.assertEqual(gen.check(self.files, directory), [])
        with open(directory / "dlr_cnp_mask_default.properties", "a", encoding="ascii") as handle:
            handle.write("Mask_999_1=+C (A) x\n")
        (directory / "tz310cnp_61_default.properties").unlink()
        (directory / "tz310cnp_64_default.properties").write_text("Translate=1\n")
        (directory / "notes.txt").write_text("not a configuration file\n")
        problems = gen.check(self.files, directory)
        self.assertEqual(len(problems), 3, problems)
        self.assertTrue(problems[0].startswith("differs: ") and "dlr_cnp_mask" in problems[0])
        self.assertTrue(problems[1].startswith("missing: ") and "tz310cnp_61" in problems[1])
        self.assertTrue(problems[2].startswith("not generated: ") and "tz310cnp_64" in problems[2])

    def test_check_mode_exit_status(self):
        directory = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, directory)
        argv = ["--facts", str(FACTS), "--out", str(directory)]
        self.assertEqual(gen.main(argv), 0)
        self.assertEqual(gen.main(argv + ["--check"]), 0)
        (directory / "dialingrules_default.properties").write_text("FR=33:00:EF:0F:0F:France:P\n")
        self.assertEqual(gen.main(argv + ["--check"]), 1)
        self.assertEqual(gen.main(["--facts", str(directory / "nowhere"), "--check"]), 2)


if __name__ == "__main__":
    unittest.main()
