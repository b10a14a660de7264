"""Answers of the built horavexctl, for comparison."""

import json
import os
import subprocess

PROGRAM = os.path.join(os.environ["HORAVEX_TEST_BINARY_DIR"], "bin", "horavexctl")

# The sanitizers' own library is there for the interpreter, which brings none.
ENVIRONMENT = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}


def ask(*words):
    """What a command tells as JSON."""
    done = subprocess.run([PROGRAM, *map(str, words), "--json"], env=ENVIRONMENT,
                          stdout=subprocess.PIPE, check=False)
    return json.loads(done.stdout)
