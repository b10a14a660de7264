// Names that Windows-1252 can hold, and the folded form that orders them.

// What Windows-1252 has in the place of the control characters 0x80 to 0x9F; its other printable
// characters are those of Latin-1.
const windowsExtras = new Set("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");

const inWindows1252 = (letter) => /[ -~\u00a0-\u00ff]/.test(letter) || windowsExtras.has(letter);

// Letters that have no accent to drop, so that Unicode cannot take them apart.
const plainLetters = {
    ı: "i", ł: "l", Ł: "L", đ: "d", Đ: "D", ħ: "h", Ħ: "H", ə: "e", Ə: "E", ǝ: "e", Ǝ: "E",
    ŋ: "ng", Ŋ: "Ng", ŧ: "t", Ŧ: "T", ĸ: "k", ʉ: "u",
};

// Cyrillic, lower case; й, ё and ї are listed because they would otherwise lose their mark.
const cyrillicLetters = {
    а: "a", б: "b", в: "v", г: "g", ѓ: "gj", д: "d", ђ: "dj", е: "e", ё: "yo", є: "ye", ж: "zh",
    з: "z", ѕ: "dz", и: "i", і: "i", ї: "yi", й: "y", ј: "j", к: "k", ќ: "kj", л: "l", љ: "lj",
    м: "m", н: "n", њ: "nj", о: "o", ө: "o", п: "p", р: "r", с: "s", т: "t", ћ: "c", у: "u",
    ү: "u", ф: "f", х: "h", ц: "ts", ч: "ch", џ: "dj", ш: "sh", щ: "shch", ъ: "", ы: "y", ь: "",
    э: "e", ю: "yu", я: "ya",
};

const foldedLetters = { ß: "ss", æ: "ae", œ: "oe", ø: "o", ð: "d", þ: "th" };

export const dropAccents = (text) => text.normalize("NFD").replace(/\p{M}/gu, "");

function romanizeCyrillic(letter) {
    const lower = letter.toLowerCase();
    const latin = cyrillicLetters[lower];
    if (latin === undefined || letter === lower) return latin;
    return latin.charAt(0).toUpperCase() + latin.slice(1);
}

function representable(letter) {
    if (inWindows1252(letter)) return letter;
    const latin = plainLetters[letter] ?? romanizeCyrillic(letter);
    if (latin !== undefined) return latin;
    const bare = dropAccents(letter);
    if (bare === letter) throw new Error(`no Windows-1252 form of ${letter}; extend names.mjs`);
    return [...bare].map(representable).join("");
}

/// The name in letters of Windows-1252, with one sort of apostrophe and of hyphen and single blanks.
/// Cyrillic is romanized; a repetition of the name in Arabic or Greek letters is dropped.
/// Throws for a letter of any other alphabet.
export function plainName(name) {
    const tidy = name
        .normalize("NFC")
        .replace(/,? *[\p{Script=Arabic}\p{Script=Greek}]+/gu, "")
        .replace(/[‘’‛ʻʼʹʽ`´”“"]/gu, "'")
        .replace(/[–—]/g, "-")
        .replace(/[\s\p{Cc}]+/gu, " ");
    return [...tidy].map(representable).join("").replace(/ +/g, " ").trim();
}

/// Lower case without accents: what a search compares.
export function bareLetters(name) {
    return dropAccents(name.toLowerCase()).replace(/[ßæœøðþ]/g, (c) => foldedLetters[c]);
}

/// Lower case without accents, apostrophes and punctuation: what rows are ordered by.
export function fold(name) {
    return bareLetters(name).replace(/'/g, "").replace(/[^a-z0-9]+/g, " ").trim();
}

/// -1, 0 or 1 by code units, the same on every machine whatever its locale.
export function compareText(left, right) {
    return left < right ? -1 : Number(left > right);
}
