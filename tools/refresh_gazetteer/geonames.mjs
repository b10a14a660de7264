// The newer table of GeoNames: zones and other names.

import { readFileSync } from "node:fs";

// Columns of a GeoNames table, from 0; the rest is not needed.
const columns = { id: 0, name: 1, otherNames: 3, latitude: 4, longitude: 5, country: 8, zone: 17 };
const columnCount = 19;

function parsePlace(line) {
    const fields = line.split("\t");
    if (fields.length !== columnCount) throw new Error(`not ${columnCount} columns: ${line}`);
    return {
        id: Number(fields[columns.id]),
        name: fields[columns.name],
        otherNames: fields[columns.otherNames].split(",").filter((name) => name !== ""),
        latitude: Number(fields[columns.latitude]), // degrees, north positive
        longitude: Number(fields[columns.longitude]), // degrees, east positive
        country: fields[columns.country],
        zone: fields[columns.zone], // name in the zone database
    };
}

/// The places of a table in the form of GeoNames' own extracts, without heading.
export function parsePlaces(text) {
    return text.split("\n").filter((line) => line !== "").map(parsePlace);
}

export const readPlaces = (path) => parsePlaces(readFileSync(path, "utf8"));
