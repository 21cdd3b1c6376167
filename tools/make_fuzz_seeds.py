#!/usr/bin/env python3
"""Writes the fuzzers' seed corpora (fuzz/corpus/) from the shipped example numbers and the shipped
configuration files. Run from anywhere; the output is deterministic."""
import csv
import pathlib
import shutil

ROOT = pathlib.Path(__file__).resolve().parent.parent
FACTS = ROOT.parent / "shared" / "data"
DATA = ROOT / "data"
CORPUS = ROOT / "fuzz" / "corpus"

# The installations of fuzz_conversions.cpp, in its order.
SITES = ["FR", "DE", "AT", "GB", "US", "RU", "AR", "CO", "AU", "MX", "CH", "IT", "NL", "BE", "IE", "NZ"]
OPERATIONS = 11


def conversion_seeds():
    with open(FACTS / "countries.tsv", newline="", encoding="utf-8") as facts:
        countries = {row["iso2"]: row for row in csv.DictReader(facts, delimiter="\t")}
    seeds = []
    for site_index, site in enumerate(SITES):
        row = countries[site]
        trunk, code = row["national_prefix"], row["calling_code"]
        numbers = []
        for example in (row["fixed_example"], row["mobile_example"]):
            if example:
                numbers += [trunk + example, "+" + code + " " + example, row["international_prefix"] + code + example]
        numbers += ["*12#", "123"]
        for number_index, number in enumerate(numbers):
            operation = (site_index + number_index) % OPERATIONS
            seeds.append(bytes([site_index, operation]) + number.encode("ascii"))
    return seeds


def property_file_seeds():
    def head(name, lines):
        path = DATA / name
        return b"".join(path.read_bytes().splitlines(keepends=True)[:lines]) if path.exists() else b""

    files = ["dialingrules_default.properties", "dlr_cnp_mask_default.properties",
             "specific_format_activation_default.properties", "tz310cnp_49_default.properties",
             "tz310cnp_54_default.properties", "tz310cnp_61_default.properties", "tz310cnp_57.properties"]
    small = b"\0".join(head(name, 12) for name in files)
    larger = b"\0".join(head(name, 60) for name in files)
    return [small, larger]


def write(directory, seeds):
    if directory.exists():
        shutil.rmtree(directory)
    directory.mkdir(parents=True)
    for index, seed in enumerate(seeds):
        (directory / f"seed-{index:03d}").write_bytes(seed)


if __name__ == "__main__":
    write(CORPUS / "conversions", conversion_seeds())
    write(CORPUS / "property_files", property_file_seeds())
