"""Pages of documents in Markdown."""

import posixpath

from markdown_it import MarkdownIt

from page import Page, Section, anchor_of


def site_path(source):
    """Where a document stands in the site: in the same folder, a README as its index."""
    folder, name = posixpath.split(source)
    name = "index" if name == "README.md" else name.removesuffix(".md")
    return posixpath.join(folder, name + ".html")


def document_page(source, text, documents):
    """The page of a document's text. Links, and names in `code`, lead to the other documents."""
    tokens = MarkdownIt("commonmark").enable("table").parse(text)
    sections = [Section("", "", 1)]
    taken = set()
    heading = None
    for token in tokens:
        if token.type == "heading_open":
            heading = token
        elif token.type == "inline" and heading:
            title = _plain(token)
            sections.append(Section(anchor_of(title, taken), title, int(heading.tag[1])))
            heading.attrSet("id", sections[-1].anchor)
            heading = None
        elif token.type == "inline":
            _lead_on(token, source, documents)
            sections[-1].text += " " + _plain(token)
        elif token.type == "fence":
            sections[-1].text += " " + token.content
    title = sections[1].title if len(sections) > 1 else source
    sections = [section for section in sections if section.title]
    return Page(site_path(source), source, title, _render(tokens), sections)


def _render(tokens):
    markdown = MarkdownIt("commonmark").enable("table")
    html = markdown.renderer.render(tokens, markdown.options, {})
    # A table that is wider than the page moves by itself.
    return (html.replace("<table>", '<div class="wide"><table>')
            .replace("</table>", "</table></div>"))


def _plain(token):
    """The text of a line without its marks."""
    return "".join(" " if child.type.endswith("break") else child.content
                   for child in token.children if child.type != "html_inline")


def _lead_on(token, source, documents):
    """Turns links to documents into links to their pages, and gives names of documents one."""
    folder = posixpath.dirname(source)
    children = []
    inside = False
    for child in token.children:
        if child.type == "link_open":
            inside = True
            child.attrSet("href", _page_address(child.attrGet("href"), folder, documents))
        inside = inside and child.type != "link_close"
        named = _document_named(child, folder, documents)
        children += _link(child, named, folder) if named and not inside else [child]
    token.children = children


def _page_address(address, folder, documents):
    path, mark, anchor = address.partition("#")
    target = posixpath.normpath(posixpath.join(folder, path))
    if ":" in address or target not in documents:
        return address
    return posixpath.relpath(site_path(target), folder or ".") + mark + anchor


def _document_named(child, folder, documents):
    """The document that a piece of `code` is the name of, from the root or from its own folder."""
    if child.type != "code_inline":
        return None
    names = (child.content, posixpath.normpath(posixpath.join(folder, child.content)))
    return next((name for name in names if name in documents), None)


def _link(child, document, folder):
    link_open = child.copy(type="link_open", tag="a", nesting=1, markup="", content="")
    link_open.attrs = {"href": posixpath.relpath(site_path(document), folder or ".")}
    return [link_open, child,
            child.copy(type="link_close", tag="a", nesting=-1, markup="", content="")]
