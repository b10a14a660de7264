import assert from "node:assert/strict";
import test from "node:test";
import { fold, plainName } from "../names.mjs";

test("letters of Windows-1252 stay as they are", () => {
    assert.equal(plainName("L'Haÿ-les-Roses, Škofja Loka, Œuilly"), "L'Haÿ-les-Roses, Škofja Loka, Œuilly");
});

test("letters outside Windows-1252 lose their accents or become plain ones", () => {
    assert.equal(plainName("Łódź Māzandarān Əhmədbəyli Iğdır Thừa"), "Lódz Mazandaran Ehmedbeyli Igdir Thua");
});

test("accents written as separate characters are dropped or composed", () => {
    assert.equal(plainName("Sarpol-e Z\u0304aha\u0304b, Se\u0301vres"), "Sarpol-e Zahab, Sévres");
});

test("all apostrophes and dashes are of one sort", () => {
    assert.equal(plainName("ʻEua Al-`Ula Ma’an Ak”yar Hrpelje–Kozina"),
        "'Eua Al-'Ula Ma'an Ak'yar Hrpelje-Kozina");
});

test("Cyrillic is romanized and a repetition in Arabic or Greek dropped", () => {
    assert.equal(plainName("Чучер - Сандево"), "Chucher - Sandevo");
    assert.equal(plainName("Sidi Senoussi سيدي سنوسي"), "Sidi Senoussi");
    assert.equal(plainName("Maximianopolis, Μαξιμιανούπολις"), "Maximianopolis");
});

test("tabs and runs of blanks become one blank", () => {
    assert.equal(plainName(" a\t\u00a0 b "), "a b");
});

test("a letter of an unknown alphabet is refused", () => {
    assert.throws(() => plainName("東京"), /no Windows-1252 form/);
});

test("folding drops case, accents, apostrophes and punctuation", () => {
    assert.equal(fold("'Aïn Straße-(Ødense)"), "ain strasse odense");
});
