// Which province a city lies in. The cities come from an older package than the provinces, and
// division codes have been dissolved and reissued in between (Norway, Vietnam, Latvia ...).

import { groupBy } from "./group_by.mjs";
import { provinceNames } from "./provinces.mjs";

// Countries that gave old codes to other provinces, so that a city's own code misleads.
const reissued = new Set(["VN"]);

const sameTownDegrees = 0.1; // records of one name this close in both directions are one town
const neighbourDegrees = 1; // a nearest town farther than this tells nothing of the province

/// Degrees of latitude between two places, good enough to compare neighbours.
function separation(latitude, longitude, place) {
    const east = (place.lng - longitude) * Math.cos((latitude * Math.PI) / 180);
    return Math.hypot(place.lat - latitude, east);
}

function nearest(city, places) {
    const [longitude, latitude] = city.loc.coordinates;
    const none = { distance: neighbourDegrees };
    return places.reduce((best, place) => {
        const distance = separation(latitude, longitude, place);
        return distance < best.distance ? { distance, place } : best;
    }, none).place;
}

const isSameTown = (city) => (place) =>
    Math.abs(place.lat - city.loc.coordinates[1]) < sameTownDegrees
    && Math.abs(place.lng - city.loc.coordinates[0]) < sameTownDegrees;

/// Function from a city of the older package to its province name, "" where there is none: the
/// province of the same town in the newer package, else of its own code, else of the nearest town.
export function provinceFinder(admin1, newerPlaces) {
    const names = provinceNames(admin1);
    const byTown = groupBy(newerPlaces, (place) => `${place.country} ${place.name}`);
    const byCountry = groupBy(newerPlaces, (place) => place.country);
    const nameOf = (country, code) => names.get(`${country}.${code}`);

    return ({ country, name, adminCode, ...city }) => {
        const twin = byTown.get(`${country} ${name}`)?.find(isSameTown(city));
        const own = reissued.has(country) ? undefined : nameOf(country, adminCode);
        const neighbour = () => nearest(city, byCountry.get(country) ?? []);
        return nameOf(country, twin?.admin1) ?? own ?? nameOf(country, neighbour()?.admin1) ?? "";
    };
}
