import assert from "node:assert/strict";
import test from "node:test";
import { parsePlaces } from "../geonames.mjs";
import { formOf, otherNames } from "../other_names.mjs";
import { twinFinder } from "../twins.mjs";

const line = (fields) =>
    Array.from({ length: 19 }, (_, column) => fields[column] ?? "").join("\t");

test("a row of the table is read though fields of it are empty", () => {
    const text = `${line({ 0: "7", 1: "Köln", 3: "Cologne,Keln", 4: "50.9", 5: "6.95", 8: "DE", 17: "Europe/Berlin" })}\n`;
    assert.deepEqual(parsePlaces(text), [{
        id: 7, name: "Köln", otherNames: ["Cologne", "Keln"], latitude: 50.9, longitude: 6.95,
        country: "DE", zone: "Europe/Berlin",
    }]);
    assert.deepEqual(parsePlaces(line({ 0: "8" }))[0].otherNames, []);
});

test("a row of the table that lacks columns is refused", () => {
    assert.throws(() => parsePlaces("7\tKöln"), /19 columns/);
});

const place = (id, name, latitude, longitude, more = {}) =>
    ({ id, name, otherNames: [], latitude, longitude, country: "OM", zone: `Z/${id}`, ...more });

const row = (name, more = {}) =>
    ({ id: 1, code: "OM", name, latitude: 1000, longitude: 2000, population: 90_000, ...more });

const twinOf = (places, wanted) => twinFinder(places)(wanted).id;

test("of near places the same record comes before a namesake, and that before the nearest", () => {
    const nearest = place(4, "Other", 10.001, 20);
    const namesake = place(3, "‘Ibrī", 10.01, 20);
    const record = place(1, "New", 10.02, 20.02);
    assert.equal(twinOf([nearest, namesake, record], row("Ibri")), 1);
    assert.equal(twinOf([nearest, namesake], row("Ibri")), 3);
    assert.equal(twinOf([place(5, "Farther", 10.015, 20), nearest], row("Ibri")), 4);
});

test("an other name makes a namesake too", () => {
    const places = [place(3, "Near", 10, 20), place(4, "New", 10.01, 20, { otherNames: ["Ibri"] })];
    assert.equal(twinOf(places, row("Ibri")), 4);
});

test("a place more than 0.02 degrees away is not near, whatever its name", () => {
    assert.equal(twinOf([place(3, "Near", 10.02, 20), place(1, "Ibri", 10.03, 20)], row("Ibri")), 3);
});

test("where none is near the nearest of the country counts, across the date line too", () => {
    const places = [place(3, "A", 12, 20), place(4, "B", 10.5, 20),
        place(5, "C", 10, 20, { country: "YE" })];
    assert.equal(twinOf(places, row("Ibri")), 4);
    const beyond = [place(6, "D", 10, 170), place(7, "E", 10, -179.5)];
    assert.equal(twinOf(beyond, row("Ibri", { longitude: 17_990 })), 7);
});

test("a country without places is refused", () => {
    assert.throws(() => twinOf([place(3, "A", 12, 20)], row("Sur", { code: "YE" })), /no place of YE/);
});

const namesOf = (name, names, more = {}) => otherNames(
    row(name, more), { name, country: more.code ?? "OM", otherNames: names });

test("names that the own one finds are left out, whatever their accents", () => {
    assert.deepEqual(namesOf("São Paulo", ["Sao Paulo", "Paulo", "San Pablo"]), ["San Pablo"]);
});

test("a name without the own one's apostrophe stays, for it is not found by it", () => {
    assert.deepEqual(namesOf("Ra's", ["Ras"]), ["Ras"]);
});

test("spellings of one name come once", () => {
    assert.deepEqual(namesOf("Kyiv", ["Kiev", "Kíev", "K'iev", "Київ", "КИЇВ"], { code: "UA" }),
        ["Київ", "Kiev"]);
    assert.equal(formOf("الْقَاهِرَة"), formOf("القاهرة"));
    assert.notEqual(formOf("मुंबई"), formOf("मुबई"));
});

test("a country that writes Latin letters keeps the spelling with accents", () => {
    assert.deepEqual(namesOf("Munich", ["Munchen", "München"], { code: "DE" }), ["München"]);
    assert.deepEqual(namesOf("Cairo", ["Kairo", "Kairó"], { code: "EG" }), ["Kairo"]);
});

test("romanizations by rule, codes of airports and unclean names are left out", () => {
    const names = ["kai luo", "CAI", "Caire - Le Caire", "Cairo 2", "Cairo (x)", "…", "Misr"];
    assert.deepEqual(namesOf("Cairo", names, { code: "EG" }), ["Misr"]);
});

test("native names come first, then the table's own, then those with more spellings", () => {
    const names = ["Abc", "Kair", "Káir", "Каир", "القاهرة"];
    const place = { name: "Misr", country: "EG", otherNames: names };
    assert.deepEqual(otherNames(row("Cairo", { code: "EG" }), place),
        ["القاهرة", "Misr", "Kair", "Abc", "Каир"]);
});

test("small places lose names in scripts that are not at home there", () => {
    const names = ["Ибри", "عبري", "伊卜里"];
    assert.deepEqual(namesOf("Ibri", names, { population: 49_999 }), ["عبري"]);
    assert.deepEqual(namesOf("Ibri", names, { population: 50_000 }), ["عبري", "Ибри", "伊卜里"]);
    assert.deepEqual(namesOf("Lesnoy", ["Лесной"], { code: "RU", population: 9 }), ["Лесной"]);
});

test("invisible characters go, joiners stay, blanks become one", () => {
    assert.deepEqual(namesOf("Kyiv", ["کی\u200cیف", "\u200fA \t b"]), ["کی\u200cیف", "A b"]);
});
