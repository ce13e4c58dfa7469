"""What the stock shell finds in a store."""

import subprocess
from collections import Counter

STORE_KEY = "kelp7734"


def ask_store(store, statements):
    """The answer of the stock shell. Raises RuntimeError if it complains."""
    shell = subprocess.run(
        ["sqlcipher", "-bail", "-batch", store],
        input=f"PRAGMA key = '{STORE_KEY}';\n{statements}\n",
        capture_output=True,
        text=True,
        errors="replace",
    )
    if shell.returncode or shell.stderr:
        raise RuntimeError(shell.stderr.strip() or f"the shell ended with {shell.returncode}")
    return shell.stdout.splitlines()


def stored_rows(store):
    try:
        lines = ask_store(
            store,
            "PRAGMA quick_check;\n"
            "SELECT tPipeID, CAST(round(dtDateTime * 1440) AS INTEGER), tButtonCode "
            "FROM tblEvents;",
        )
    except RuntimeError as error:
        return Counter(), [str(error)]
    touches = [line.split("|") for line in lines if line.count("|") == 2]
    rows = Counter((reader, int(minute), code) for reader, minute, code in touches)
    verdict = [line for line in lines if "|" not in line]
    return rows, [] if verdict == ["ok"] else [f"quick_check: {verdict[:1]}"]
