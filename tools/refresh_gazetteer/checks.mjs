// What must hold of the rows before they are written; a failed check throws.

import assert from "node:assert/strict";
import { countsForRecord } from "./selection.mjs";

const largestNameFile = 32_700; // bytes; positions in it are 16-bit signed, with some to spare
const meccaRecord = 37_184; // record number, from 1, that the compiled files give Mecca
const fewestCities = 40_000;

// Country, city, latitude and longitude in degrees, from an atlas; to half a degree.
const landmarks = [
    ["SA", "Mecca", 21.4, 39.8], ["SA", "Medina", 24.5, 39.6], ["SA", "Riyadh", 24.7, 46.7],
    ["SA", "Jeddah", 21.5, 39.2], ["PS", "Gaza", 31.5, 34.5], ["PS", "East Jerusalem", 31.8, 35.2],
    ["IL", "Jerusalem", 31.8, 35.2], ["EG", "Cairo", 30.0, 31.2], ["EG", "Alexandria", 31.2, 29.9],
    ["MA", "Casablanca", 33.6, -7.6], ["MA", "Rabat", 34.0, -6.8], ["DZ", "Algiers", 36.8, 3.1],
    ["TN", "Tunis", 36.8, 10.2], ["LY", "Tripoli", 32.9, 13.2], ["SD", "Khartoum", 15.6, 32.5],
    ["NG", "Lagos", 6.5, 3.4], ["NG", "Abuja", 9.1, 7.5], ["SN", "Dakar", 14.7, -17.4],
    ["KE", "Nairobi", -1.3, 36.8], ["ZA", "Cape Town", -33.9, 18.4], ["SO", "Mogadishu", 2.0, 45.3],
    ["TR", "Istanbul", 41.0, 29.0], ["TR", "Ankara", 39.9, 32.9], ["IR", "Tehran", 35.7, 51.4],
    ["IQ", "Baghdad", 33.3, 44.4], ["SY", "Damascus", 33.5, 36.3], ["JO", "Amman", 31.9, 35.9],
    ["LB", "Beirut", 33.9, 35.5], ["KW", "Kuwait City", 29.4, 48.0], ["BH", "Manama", 26.2, 50.6],
    ["QA", "Doha", 25.3, 51.5], ["AE", "Dubai", 25.2, 55.3], ["AE", "Abu Dhabi", 24.5, 54.4],
    ["OM", "Muscat", 23.6, 58.4], ["YE", "Sanaa", 15.4, 44.2], ["PK", "Karachi", 24.9, 67.0],
    ["PK", "Islamabad", 33.7, 73.1], ["AF", "Kabul", 34.5, 69.2], ["UZ", "Tashkent", 41.3, 69.2],
    ["IN", "New Delhi", 28.6, 77.2], ["IN", "Mumbai", 19.1, 72.9], ["BD", "Dhaka", 23.7, 90.4],
    ["MY", "Kuala Lumpur", 3.1, 101.7], ["ID", "Jakarta", -6.2, 106.8],
    ["SG", "Singapore", 1.3, 103.8],
    ["BN", "Bandar Seri Begawan", 4.9, 114.9], ["CN", "Beijing", 39.9, 116.4],
    ["JP", "Tokyo", 35.7, 139.7], ["AU", "Sydney", -33.9, 151.2], ["NZ", "Auckland", -36.8, 174.8],
    ["GB", "London", 51.5, -0.1], ["FR", "Paris", 48.9, 2.3], ["DE", "Berlin", 52.5, 13.4],
    ["ES", "Madrid", 40.4, -3.7], ["IT", "Rome", 41.9, 12.5], ["RU", "Moscow", 55.8, 37.6],
    ["BA", "Sarajevo", 43.8, 18.4], ["XK", "Pristina", 42.7, 21.2], ["NO", "Oslo", 59.9, 10.7],
    ["US", "New York City", 40.7, -74.0], ["US", "Los Angeles", 34.1, -118.2],
    ["CA", "Toronto", 43.7, -79.4], ["MX", "Mexico City", 19.4, -99.1],
    ["BR", "São Paulo", -23.5, -46.6], ["AR", "Buenos Aires", -34.6, -58.4],
];

// Country, city, zone: whole hours and others, north and south, two zones of one country.
const landmarkZones = [
    ["SA", "Mecca", "Asia/Riyadh"], ["EG", "Cairo", "Africa/Cairo"], ["PS", "Gaza", "Asia/Gaza"],
    ["MA", "Casablanca", "Africa/Casablanca"], ["NP", "Kathmandu", "Asia/Kathmandu"],
    ["IN", "Mumbai", "Asia/Kolkata"], ["IR", "Tehran", "Asia/Tehran"],
    ["IE", "Dublin", "Europe/Dublin"], ["DE", "Berlin", "Europe/Berlin"],
    ["US", "New York City", "America/New_York"], ["US", "Phoenix", "America/Phoenix"],
    ["CA", "St. John's", "America/St_Johns"], ["BR", "Manaus", "America/Manaus"],
    ["AU", "Adelaide", "Australia/Adelaide"], ["NZ", "Auckland", "Pacific/Auckland"],
    ["KI", "Tarawa", "Pacific/Tarawa"], ["WS", "Apia", "Pacific/Apia"],
    ["UA", "Kyiv", "Europe/Kyiv"],
];

/// Total length of the distinct names; one letter is one byte in Windows-1252.
export function packedBytes(names) {
    return [...new Set(names)].reduce((sum, name) => sum + name.length, 0);
}

const near = (degrees, stored) => Math.abs(degrees * 100 - stored) <= 50;

function checkLandmarks(rows) {
    for (const [code, name, latitude, longitude] of landmarks) {
        const found = rows.some((row) => row.code === code && row.name === name
            && near(latitude, row.latitude) && near(longitude, row.longitude));
        assert(found, `${name} (${code}) is missing or misplaced`);
    }
}

function checkZones(rows) {
    for (const [code, name, zone] of landmarkZones) {
        const found = rows.some((row) => row.code === code && row.name === name && row.zone === zone);
        assert(found, `${name} (${code}) is not in ${zone}`);
    }
}

function checkRow(row) {
    const told = JSON.stringify(row);
    assert(row.name !== "" && row.country !== "", `nameless: ${told}`);
    assert(Math.abs(row.latitude) <= 9000 && Math.abs(row.longitude) <= 18000, `off Earth: ${told}`);
    for (const text of [row.country, row.name, row.province, ...row.names.split(",")]) {
        assert(text === text.trim() && !/[\t\p{Cc}]/u.test(text), `unclean: ${told}`);
    }
    assert(/^[A-Z][A-Za-z]+(\/[A-Za-z_-]+)+$/.test(row.zone), `no zone: ${told}`);
}

/// The numbers to report. Throws AssertionError when the rows cannot be compiled.
export function checkedFigures(rows) {
    rows.forEach(checkRow);
    checkLandmarks(rows);
    checkZones(rows);
    const mecca = rows.findIndex((row) => row.code === "SA" && row.name === "Mecca");
    const counts = countsForRecord(rows, mecca, meccaRecord);
    assert(counts && counts[1] >= fewestCities, `Mecca cannot become record ${meccaRecord}`);
    const countryBytes = packedBytes(rows.map((row) => row.country));
    const provinceBytes = packedBytes(rows.map((row) => row.province));
    assert(countryBytes < largestNameFile, `country names: ${countryBytes} bytes`);
    assert(provinceBytes < largestNameFile, `province names: ${provinceBytes} bytes`);
    return {
        rows: rows.length,
        countries: new Set(rows.map((row) => row.code)).size,
        countryBytes,
        provinces: new Set(rows.map((row) => row.province)).size - 1,
        provinceBytes,
        zones: new Set(rows.map((row) => row.zone)).size,
        otherNames: rows.flatMap((row) => row.names.split(",").filter(Boolean)).length,
        smallestPopulation: Math.min(...rows.map((row) => row.population)),
        meccaAtMost: mecca + 1,
        citiesForMecca: counts,
    };
}
