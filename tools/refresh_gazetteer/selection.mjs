// The order of the rows, and which of them a gazetteer of a given size takes.

import { compareText, fold } from "./names.mjs";

const orderKeys = (row) => [
    fold(row.country), fold(row.name), fold(row.province), row.latitude, row.longitude, row.name,
    row.province,
];

function compareKeys(left, right) {
    const at = left.findIndex((key, index) => key !== right[index]);
    return at < 0 ? 0 : compareText(left[at], right[at]);
}

/// The rows by country, name, province (all folded), latitude, longitude, then by name and
/// province as written: an order without ties.
export function inFileOrder(rows) {
    const keyed = rows.map((row) => ({ row, keys: orderKeys(row) }));
    return keyed.sort((left, right) => compareKeys(left.keys, right.keys)).map(({ row }) => row);
}

/// Row numbers from 0 in the order of choice: first the most populous row of every country, then
/// all others by falling population; rows of equal population as they stand.
export function choiceOrder(rows) {
    const first = new Map();
    rows.forEach((row, index) => {
        const leader = rows[first.get(row.code)];
        if (!(leader?.population >= row.population)) first.set(row.code, index);
    });
    const leaders = new Set(first.values());
    const rank = (index) => (leaders.has(index) ? 0 : 1);
    return rows.map((_, index) => index).sort((left, right) =>
        rank(left) - rank(right) || rows[right].population - rows[left].population || left - right);
}

/// The `count` rows chosen first, in their order in `rows`.
export function chosenRows(rows, count) {
    const taken = choiceOrder(rows).slice(0, count);
    return taken.sort((left, right) => left - right).map((index) => rows[index]);
}

/// Smallest and largest count of chosen rows for which `target` (a row number from 0) becomes
/// record number `record` (from 1); undefined when there is none.
export function countsForRecord(rows, target, record) {
    const order = choiceOrder(rows);
    const counts = [];
    let position = 0;
    order.forEach((index, taken) => {
        position += Number(index <= target);
        if (position === record && taken >= order.indexOf(target)) counts.push(taken + 1);
    });
    return counts.length > 0 ? [counts[0], counts.at(-1)] : undefined;
}
