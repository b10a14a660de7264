// Which of a place's other names are worth keeping, and in what order.

import { groupBy } from "./group_by.mjs";
import { bareLetters, dropAccents, fold, plainName } from "./names.mjs";

// From this population on a place keeps its names in every script. Smaller ones lose those in the
// scripts below, unless they lie where it is at home: nearly all of them are made by rule.
const knownAbroad = 50_000;

const homesOfScript = {
    Cyrillic: "AM AZ BA BG BY GE HR KG KZ MD ME MK MN RS RU TJ TM UA UZ XK",
    Han: "CN HK JP KR MO MY SG TW",
    Hangul: "KP KR",
    Hiragana: "JP",
    Katakana: "JP",
};

// Unicode's scripts for the codes that CLDR gives as a country's own.
const mainScripts = {
    Latn: ["Latin"], Hans: ["Han"], Hant: ["Han"], Jpan: ["Han", "Hiragana", "Katakana"],
    Kore: ["Hangul"], Arab: ["Arabic"], Cyrl: ["Cyrillic"], Grek: ["Greek"], Hebr: ["Hebrew"],
    Thai: ["Thai"], Deva: ["Devanagari"], Beng: ["Bengali"], Geor: ["Georgian"], Armn: ["Armenian"],
    Ethi: ["Ethiopic"], Khmr: ["Khmer"], Laoo: ["Lao"], Mymr: ["Myanmar"], Sinh: ["Sinhala"],
    Thaa: ["Thaana"], Tibt: ["Tibetan"],
};

// Marks of these are accents or vowel points; those of other scripts are letters.
const pointedScripts = ["Latin", "Cyrillic", "Greek", "Arabic", "Hebrew"];

const isIn = (scripts, name) =>
    scripts.some((script) => new RegExp(`\\p{Script=${script}}`, "u").test(name));

const isLatin = (name) => isIn(["Latin"], name);

function isOfItsCountry(name, country) {
    const { script } = new Intl.Locale(`und-${country}`).maximize();
    return isIn(mainScripts[script] ?? [], name);
}

const isAbroad = (name, country) => Object.entries(homesOfScript).some(
    ([script, homes]) => isIn([script], name) && !homes.split(" ").includes(country));

/// Romanized by rule ("kai luo"), an airport's code, a pair ("Caire - Le Caire"), or unclean.
function isNoName(name) {
    const invented = isLatin(name) && /^[\p{Ll}'`]|^[A-Z]{3,4}$/u.test(name);
    return invented || / - |[\t\p{Cc}\d/()[\]]/u.test(name) || !/\p{L}/u.test(name);
}

function inPlainLatin(name) {
    try {
        return plainName(name);
    } catch {
        return name; // it has a letter without a plain form
    }
}

const searched = (name) => bareLetters(isLatin(name) ? inPlainLatin(name) : name);

/// The names of one form are spellings of one name.
export function formOf(name) {
    const latin = isLatin(name) ? fold(inPlainLatin(name)) : "";
    const bare = isIn(pointedScripts, name) ? dropAccents(name) : name;
    return latin || bare.toLowerCase().replace(/[^\p{L}\p{M}]/gu, "");
}

/// The table has a spelling without accents for each with them; at home the latter is the right one.
function bestSpelling(names, country) {
    const accented = names.find((name) => name !== inPlainLatin(dropAccents(name)));
    return isOfItsCountry(names[0], country) && isLatin(names[0]) ? accented ?? names[0] : names[0];
}

/// 0 for a name in the letters of a country that does not write Latin ones, 1 for the table's own
/// name, 2 for any other.
function distanceFromHome(name, place) {
    if (!isLatin(name) && isOfItsCountry(name, place.country)) return 0;
    return name === place.name ? 1 : 2;
}

// Joiners stay: Persian and Sinhala are written with them.
const tidy = (name) =>
    name.normalize("NFC").replace(/[\u200b\u200e\u200f]/gu, "").replace(/\s+/gu, " ").trim();

/// The names of a row's place but those that a search finds by the row's own: native ones first,
/// then the table's own, then by how many spellings there are of each.
export function otherNames(row, place) {
    const names = [place.name, ...place.otherNames]
        .map(tidy)
        .filter((name) => !isNoName(name) && !searched(row.name).includes(searched(name)))
        .filter((name) => row.population >= knownAbroad || !isAbroad(name, row.code));
    const known = [...groupBy(names, formOf).values()].map((spellings) => {
        const name = bestSpelling(spellings, row.code);
        return { name, distance: distanceFromHome(name, place), count: spellings.length };
    });
    return known
        .sort((left, right) => left.distance - right.distance || right.count - left.count)
        .map(({ name }) => name);
}
