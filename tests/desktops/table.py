"""What the desktops told, as a table."""

SIGNS = {"right": "+", "flaw": "X", "failure": "**X**", "not there": "n/a"}


def text(visits):
    """A row a desktop, a column a behaviour, and below it the words of what is not right."""
    behaviours = list(dict.fromkeys(behaviour for visit in visits for behaviour in visit["told"]))
    lines = [["desktop", *behaviours], ["---"] * (len(behaviours) + 1)]
    for visit in visits:
        outcomes = (visit["told"].get(name, {}).get("outcome") for name in behaviours)
        lines.append([visit["title"], *(SIGNS.get(outcome, "") for outcome in outcomes)])
    rows = ["| " + " | ".join(line) + " |" for line in lines]
    notes = [
        f"- {visit['title']}, {behaviour}: {answer['words']}"
        for visit in visits
        for behaviour, answer in visit["told"].items()
        if answer["words"] and answer["outcome"] != "right"
    ]
    return "\n".join(rows + [""] + notes)
