"""The blocks of code of a document, with the marks in front of them."""

from dataclasses import dataclass
import re

from markdown_it import MarkdownIt

MARK = re.compile(r"<!--\s*(.*?)\s*-->", re.DOTALL)


@dataclass
class Block:
    line: int  # of its first fence, from 1 on
    language: str  # empty where none is told, and of an indented block
    indented: bool
    mark: str  # what the comment in front of it says, or nothing
    text: str


def blocks_of(document):
    """The blocks of a document's text, in their order, also those inside lists."""
    blocks = []
    mark = ""
    for token in MarkdownIt("commonmark").enable("table").parse(document):
        if token.type in ("fence", "code_block"):
            language = token.info.split()[0] if token.info.strip() else ""
            blocks.append(
                Block(token.map[0] + 1, language, token.type == "code_block", mark, token.content))
        comment = MARK.match(token.content) if token.type == "html_block" else None
        mark = comment.group(1) if comment else ""
    return blocks
