// The search of the site: looks for all words in the sections of the index that the page has
// loaded. "/" goes to it, the arrow keys through what was found, Escape away from it.
(function () {
    "use strict";

    const home = document.currentScript.dataset.home;
    const form = document.querySelector("header form");
    const input = form.querySelector("input");
    const list = form.querySelector("ul");
    const kShown = 12;

    // Letters without case and marks, so that "ö" is found by "o" and a word of Arabic without its vowels.
    function plain(text) {
        return text.normalize("NFKD").replace(/\p{M}/gu, "").toLowerCase();
    }

    const sections = window.searchIndex.map(([address, page, title, text]) => ({
        address, page, title, text, words: plain(text), heading: plain(page + " " + title),
    }));

    // What was found, headings first.
    function find(query) {
        const words = plain(query).split(/\s+/).filter(Boolean);
        if (words.length === 0) {
            return [];
        }
        const weight = (section) => words.filter((word) => section.heading.includes(word)).length;
        return sections
            .filter((section) => words.every(
                (word) => section.heading.includes(word) || section.words.includes(word)))
            .sort((one, other) => weight(other) - weight(one));
    }

    // The text around the first word, to be recognised by.
    function excerpt(section, query) {
        const word = plain(query).split(/\s+/).find((each) => each && section.words.includes(each));
        const begin = word === undefined ? 0 : Math.max(0, section.words.indexOf(word) - 40);
        return (begin > 0 ? "…" : "") + section.text.slice(begin, begin + 110);
    }

    function row(section) {
        const link = document.createElement("a");
        const small = document.createElement("small");
        link.href = home + "/" + section.address;
        link.textContent =
            section.page === section.title ? section.page : section.page + " – " + section.title;
        small.textContent = excerpt(section, input.value);
        link.append(small);
        const item = document.createElement("li");
        item.append(link);
        return item;
    }

    function show() {
        const found = find(input.value).slice(0, kShown);
        list.replaceChildren(...found.map(row));
        list.hidden = found.length === 0;
    }

    function step(by) {
        const stops = [input, ...list.querySelectorAll("a")];
        const at = stops.indexOf(document.activeElement) + by;
        stops[Math.min(Math.max(at, 0), stops.length - 1)].focus();
    }

    form.hidden = false;
    input.addEventListener("input", show);
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        list.querySelector("a")?.click();
    });
    form.addEventListener("keydown", (event) => {
        if (event.key === "ArrowDown" || event.key === "ArrowUp") {
            event.preventDefault();
            step(event.key === "ArrowDown" ? 1 : -1);
        } else if (event.key === "Escape") {
            input.value = "";
            show();
            input.blur();
        }
    });
    document.addEventListener("keydown", (event) => {
        if (event.key === "/" && !event.ctrlKey && !event.altKey && !event.metaKey &&
            document.activeElement !== input) {
            event.preventDefault();
            input.focus();
        }
    });
    document.addEventListener("click", (event) => {
        if (!form.contains(event.target)) {
            list.hidden = true;
        }
    });
})();
