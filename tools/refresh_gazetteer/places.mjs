// The populated places of the source packages, as rows of the gazetteer.

import { countryName } from "./countries.mjs";
import { fold, plainName } from "./names.mjs";

// GeoNames feature codes left out: sections of a town (PPLA5 holds the arrondissements of
// Marseille alone), abandoned, destroyed and historical places, and former capitals.
const leftOut = new Set(["PPLX", "PPLA5", "PPLQ", "PPLW", "PPLH", "PPLCH"]);

// GeoNames ids marked as sections, yet towns of their own: East Jerusalem, Navi Mumbai, Subang Jaya.
const ownTowns = new Set([7303419, 6619347, 8504423]);

const isTown = (city) =>
    (!leftOut.has(city.featureCode) || ownTowns.has(city.cityId))
    && !city.name.endsWith("(historical)");

const hundredths = (degrees) => Math.round(degrees * 100) + 0; // + 0 turns -0 into 0

/// "Alton [Fraccionamiento]" gives "Alton", "Xeraco,Jaraco" gives "Xeraco, Jaraco".
export function cleanCityName(name) {
    const bare = name.replace(/ (\[.*\]|\((balance|village|poblacion)\))$/, "");
    return plainName(bare.replace(/,(?=\S)/g, ", "));
}

const sameTownHundredths = 10; // a name within this distance both ways, accents apart, is one town

const isAgain = (row) => (kept) =>
    (kept.name === row.name && kept.province === row.province)
    || (Math.abs(kept.latitude - row.latitude) <= sameTownHundredths
        && Math.abs(kept.longitude - row.longitude) <= sameTownHundredths);

/// Of rows that would show alike, and of rows of one town that differ in accents alone, the most
/// populous; of equal ones, the first.
export function withoutDuplicates(rows) {
    const kept = new Map();
    for (const row of rows.toSorted((left, right) => right.population - left.population)) {
        const key = [row.code, fold(row.name), fold(row.province)].join("\t");
        const namesakes = kept.get(key) ?? [];
        if (!namesakes.some(isAgain(row))) kept.set(key, [...namesakes, row]);
    }
    return [...kept.values()].flat();
}

/// Rows { id, code, country, name, province, latitude, longitude, population }; the id is that of
/// GeoNames, coordinates are in hundredths of a degree, north and east positive. `provinceOf` gives the province of a city.
export function townRows(cities, provinceOf) {
    return withoutDuplicates(cities.filter(isTown).map((city) => ({
        id: city.cityId,
        code: city.country,
        country: countryName(city.country),
        name: cleanCityName(city.name),
        province: provinceOf(city),
        latitude: hundredths(city.loc.coordinates[1]),
        longitude: hundredths(city.loc.coordinates[0]),
        population: city.population,
    })));
}
