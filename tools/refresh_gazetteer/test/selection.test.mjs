import assert from "node:assert/strict";
import test from "node:test";
import { cleanCityName, townRows } from "../places.mjs";
import { chosenRows, countsForRecord, inFileOrder } from "../selection.mjs";

const row = (country, name, population, more = {}) =>
    ({ code: country, country, name, province: "", latitude: 0, longitude: 0, population, ...more });

const names = (rows) => rows.map(({ name }) => name).join(" ");

test("rows are ordered by country, name and province whatever their accents", () => {
    const rows = [
        row("Oman", "Ibri", 1), row("Åland", "Öja", 1), row("Åland", "Oka", 1),
        row("Åland", "Oja", 1, { province: "West" }), row("Åland", "Oja", 1, { latitude: -5 }),
    ];
    const order = inFileOrder(rows).map(({ name, province }) => name + province);
    assert.deepEqual(order, ["Oja", "Öja", "OjaWest", "Oka", "Ibri"]);
});

const sample = [
    row("A", "a1", 5), row("A", "a2", 900), row("A", "a3", 50),
    row("B", "b1", 7), row("B", "b2", 7), row("C", "c1", 300), row("C", "c2", 800),
];

test("every country's most populous city comes before all others", () => {
    assert.equal(names(chosenRows(sample, 3)), "a2 b1 c2");
});

test("further cities come by population and rows keep their order", () => {
    assert.equal(names(chosenRows(sample, 5)), "a2 a3 b1 c1 c2");
});

test("counts that make a row a given record are found", () => {
    assert.deepEqual(countsForRecord(sample, 3, 3), [5, 6]);
    assert.equal(countsForRecord(sample, 3, 5), undefined);
});

const place = (name, population, more = {}) => ({
    cityId: 7, country: "OM", name, population, featureCode: "PPL", loc: { coordinates: [58.406, 23.584] },
    ...more,
});

test("coordinates are stored in hundredths of a degree, north and east positive", () => {
    const [town] = townRows([place("Muscat", 1)], () => "Muscat");
    assert.deepEqual(town, {
        id: 7, code: "OM", country: "Oman", name: "Muscat", province: "Muscat", latitude: 2358,
        longitude: 5841, population: 1,
    });
});

test("of towns that show alike the most populous remains", () => {
    const rows = townRows([place("Ibri", 1), place("‘Ibri", 3), place("Ibrī", 2)], () => "");
    assert.deepEqual(rows.map(({ name, population }) => [name, population]), [["'Ibri", 3]]);
});

test("sections, ruins and historical places are left out", () => {
    const cities = [
        place("Old Muscat", 9, { featureCode: "PPLX" }), place("Ubar", 9, { featureCode: "PPLW" }),
        place("Sur (historical)", 9), place("Sur", 1),
    ];
    assert.equal(names(townRows(cities, () => "")), "Sur");
});

test("remarks of the source are cut off a city's name", () => {
    assert.equal(cleanCityName("Río Medio [Granja]"), "Río Medio");
    assert.equal(cleanCityName("City of Milford (balance)"), "City of Milford");
    assert.equal(cleanCityName("Halle (Saale)"), "Halle (Saale)");
    assert.equal(cleanCityName("Xeraco,Jaraco"), "Xeraco, Jaraco");
});
