import assert from "node:assert/strict";
import test from "node:test";
import { provinceFinder } from "../province_finder.mjs";
import { provinceNames, shortenProvince } from "../provinces.mjs";

test("the sort of division is dropped before and after the name", () => {
    assert.equal(shortenProvince("Mecca Region"), "Mecca");
    assert.equal(shortenProvince("Urban Municipality of Kranj"), "Kranj");
    assert.equal(shortenProvince("Homyel’ Voblasc’"), "Homyel'");
});

test("a direction alone keeps its division", () => {
    assert.equal(shortenProvince("Eastern Province"), "Eastern Province");
    assert.equal(shortenProvince("National Capital Region"), "National Capital Region");
    assert.equal(shortenProvince("Red Sea State"), "Red Sea");
});

test("Indian states keep Pradesh, Nepalese provinces do not", () => {
    assert.equal(shortenProvince("Uttar Pradesh"), "Uttar Pradesh");
    assert.equal(shortenProvince("Gandaki Pradesh"), "Gandaki");
});

test("provinces of one country that would come out alike keep their whole names", () => {
    const names = provinceNames([
        { code: "RU.47", name: "Moscow Oblast" },
        { code: "RU.48", name: "Moscow" },
        { code: "XX.01", name: "Moscow Region" },
    ]);
    assert.deepEqual([...names.values()], ["Moscow Oblast", "Moscow", "Moscow"]);
});

const provinceOf = provinceFinder(
    [
        { code: "AA.1", name: "Old" }, { code: "AA.2", name: "New" }, { code: "AA.3", name: "Far" },
        { code: "VN.1", name: "Reissued" }, { code: "VN.2", name: "Right" },
    ],
    [
        { country: "AA", name: "Twin", lat: "10.05", lng: "20", admin1: "2" },
        { country: "AA", name: "Twin", lat: "40", lng: "20", admin1: "3" },
        { country: "VN", name: "Beside", lat: "10.2", lng: "20", admin1: "2" },
    ]);

const city = (country, name, adminCode, latitude = 10) =>
    ({ country, name, adminCode, loc: { coordinates: [20, latitude] } });

test("the same town of the newer package tells the province", () => {
    assert.equal(provinceOf(city("AA", "Twin", "1")), "New");
});

test("a namesake elsewhere does not; the city's own code counts", () => {
    assert.equal(provinceOf(city("AA", "Twin", "1", 30)), "Old");
});

test("a dissolved or reissued code gives way to the nearest town", () => {
    assert.equal(provinceOf(city("AA", "Other", "9")), "New");
    assert.equal(provinceOf(city("VN", "Other", "1")), "Right");
});

test("no town within a degree leaves the province empty", () => {
    assert.equal(provinceOf(city("AA", "Other", "9", 60)), "");
    assert.equal(provinceOf(city("ZZ", "Other", "9")), "");
});
