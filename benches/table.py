"""The one form in which a benchmark prints: the work, its cost, what it is measured against, the ratio, the goal."""


def print_table(rows):
    """Rows of (work, cost, against, ratio, goal), all of them texts; an empty text where there is none."""
    heads = ("Work", "Cost", "Against", "Ratio", "Goal")
    widths = [max(len(row[column]) for row in [heads, *rows]) for column in range(len(heads))]
    for row in [heads, tuple("-" * width for width in widths), *rows]:
        print("| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |", flush=True)


def verdict(value, goal, unit=""):
    """The goal, marked where it is missed."""
    return f"<= {goal:g}{unit}" + ("" if value <= goal else "  MISSED")
