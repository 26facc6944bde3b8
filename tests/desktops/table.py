"""What the desktops told, as a table."""

import inspect

from asked import BEHAVIOURS

SIGNS = {"right": "+", "flaw": "X", "failure": "**X**", "not there": "–"}
PLAIN = ("not tried", "no panel")
MARK = "<!-- what follows is written by ./dev desktops --paper -->\n"


def rows(visits):
    """A row a desktop, a column a behaviour."""
    told = {behaviour for visit in visits for behaviour in visit["told"]}
    behaviours = [name for name in BEHAVIOURS if name in told] + sorted(told - BEHAVIOURS.keys())
    lines = [["desktop", *behaviours], ["---"] * (len(behaviours) + 1)]
    for visit in visits:
        outcomes = (visit["told"].get(name, {}).get("outcome") for name in behaviours)
        lines.append([visit["title"], *(SIGNS.get(outcome, "") for outcome in outcomes)])
    return "\n".join("| " + " | ".join(line) + " |" for line in lines) + "\n"


def notes(visits, outcomes):
    """The words of what is not right."""
    told = ((visit["title"], behaviour, answer) for visit in visits for behaviour, answer in visit["told"].items())
    told = ((title, behaviour, answer) for title, behaviour, answer in told if answer["words"] not in PLAIN)
    return "".join(f"- {title}, {behaviour}: {answer['words']}\n" for title, behaviour, answer in told if answer["outcome"] in outcomes)


def text(visits):
    return rows(visits) + "\n" + notes(visits, ("flaw", "failure", "not there"))


def write_paper(path, visits):
    """Into the file, in place of what stands after the mark."""
    asked = "".join(f"- **{name}**: {' '.join(inspect.getdoc(function).split())}\n" for name, function in BEHAVIOURS.items())
    parts = [
        "\n## The table\n\n`+` right, `X` a flaw of the desktop's own, **X** one of ours, `–` not there or not tried, nothing: not asked yet.\n\n" + rows(visits),
        "\nWhat is asked:\n\n" + asked,
        "\n## Flaws of the desktops\n\n" + notes(visits, ("flaw", "not there")),
    ]
    if ours := notes(visits, ("failure",)):
        parts.append("\n## Flaws of ours\n\n" + ours)
    path.write_text(path.read_text().split(MARK)[0] + MARK + "".join(parts))
