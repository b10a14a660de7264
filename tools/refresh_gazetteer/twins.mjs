// Which place of the newer table a row of the gazetteer is.

import { groupBy } from "./group_by.mjs";
import { fold } from "./names.mjs";

const cellHundredths = 2; // places within this distance both ways may be the row's own

const hundredths = (degrees) => degrees * 100;

const cellOf = (latitude, longitude) =>
    `${Math.floor(latitude / cellHundredths)} ${Math.floor(longitude / cellHundredths)}`;

function cellsAround({ latitude, longitude }) {
    const steps = [-cellHundredths, 0, cellHundredths];
    return steps.flatMap((north) =>
        steps.map((east) => cellOf(latitude + north, longitude + east)));
}

function isNear(row, place) {
    return Math.abs(hundredths(place.latitude) - row.latitude) <= cellHundredths
        && Math.abs(hundredths(place.longitude) - row.longitude) <= cellHundredths;
}

/// Hundredths of a degree of latitude between a row and a place; good enough to compare.
function separation(row, place) {
    const apart = Math.abs(hundredths(place.longitude) - row.longitude);
    const east = Math.min(apart, 36_000 - apart) * Math.cos((row.latitude / 18_000) * Math.PI);
    return Math.hypot(hundredths(place.latitude) - row.latitude, east);
}

const isNamesake = (row, place) =>
    [place.name, ...place.otherNames].some((name) => fold(name) === fold(row.name));

/// 0 for the same record, 1 for a place that bears the row's name, 2 for any other.
function likeness(row, place) {
    if (place.id === row.id) return 0;
    return isNamesake(row, place) ? 1 : 2;
}

function best(row, places, likenessOf) {
    const keyed = places.map((place) =>
        ({ place, likeness: likenessOf(row, place), separation: separation(row, place) }));
    return keyed.reduce((least, other) =>
        (other.likeness - least.likeness || other.separation - least.separation) < 0 ? other : least)
        .place;
}

/// Function from a row to its place: of those of its country that are near, the same record, else
/// a namesake, else the nearest one; where none is near, the nearest of the country. Throws for a
/// country without places.
export function twinFinder(places) {
    const countries = groupBy(places, ({ country }) => country);
    const cells = groupBy(places, ({ country, latitude, longitude }) =>
        `${country} ${cellOf(hundredths(latitude), hundredths(longitude))}`);

    return (row) => {
        const around = cellsAround(row).flatMap((cell) => cells.get(`${row.code} ${cell}`) ?? []);
        const near = around.filter((place) => isNear(row, place));
        if (near.length > 0) return best(row, near, likeness);
        const all = countries.get(row.code);
        if (all === undefined) throw new Error(`no place of ${row.code} in the newer table`);
        return best(row, all, () => 0);
    };
}
