#!/usr/bin/env python3
"""Makes a dictionary large enough to feel its size: samples/generated/large.mvdb.

The same numbers always give the same file. Variables and value labels are dealt out evenly.
"""

import argparse
import json
from pathlib import Path

TOPICS = ["Demography", "Education", "Work", "Income", "Health", "Housing", "Migration", "Time use"]
TYPES = ["integer", "integer", "real", "string"]
CHILDREN = 3  # of each entity, as long as there are entities left


def share(total, parts, index):
    """How many of `total` things part number `index` of `parts` gets."""
    return total * (index + 1) // parts - total * index // parts


def variable(number, labels):
    kind = TYPES[number % len(TYPES)]
    topic = TOPICS[number % len(TOPICS)]
    made = {
        "name": f"V{number:06}",
        "label": f"{topic}, question {number}",
        "group": topic,
        "type": kind,
        "tag": number,
        "missing": 99999,
        "notapp": 99998,
        "metadata": {"field": f"F{number:06}", "length": 5 + number % 4},
    }
    if kind == "string":
        made["size"] = 5 + number % 4
    else:
        made["metadata"]["range"] = [{"min": 0, "max": 99997}]
    if kind == "real":
        made["metadata"]["decimals"] = 1
    if labels:
        code = str if kind == "string" else int
        made["valueLabels"] = [
            {"value": code(step), "label": f"{topic}, answer {step} of question {number}"}
            for step in range(1, labels + 1)
        ]
    return made


def dictionary(entities, variables, labels):
    made = []
    number = 0
    for index in range(entities):
        entity = {
            "name": f"LEVEL{index + 1:03}",
            "label": f"Level of records {index + 1}",
            "selectable": True,
            "virtual": False,
        }
        own = []
        for _ in range(share(variables, entities, index)):
            own.append(variable(number + 1, share(labels, variables, number)))
            number += 1
        if own:
            entity["codeVar"] = own[0]["name"]
            entity["variables"] = own
        if index:
            made[(index - 1) // CHILDREN].setdefault("entities", []).append(entity)
        made.append(entity)
    return {"entities": made[:1]}


def count(text):
    value = int(text)
    if value < 0:
        raise argparse.ArgumentTypeError("must not be negative")
    return value


def main():
    here = Path(__file__).resolve().parent
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--entities", type=count, default=50)
    parser.add_argument("--variables", type=count, default=50_000)
    parser.add_argument("--labels", type=count, default=500_000)
    parser.add_argument("--output", type=Path, default=here / "generated" / "large.mvdb")
    wanted = parser.parse_args()
    if wanted.variables and not wanted.entities:
        parser.error("variables need an entity")
    if wanted.labels and not wanted.variables:
        parser.error("value labels need a variable")

    wanted.output.parent.mkdir(parents=True, exist_ok=True)
    with open(wanted.output, "w", encoding="utf-8") as file:
        json.dump(dictionary(wanted.entities, wanted.variables, wanted.labels), file, ensure_ascii=False, indent=1)
        file.write("\n")
    print(f"{wanted.output}: {wanted.entities} entities, {wanted.variables} variables, {wanted.labels} value labels")


if __name__ == "__main__":
    main()
