// Province names without the word that only says what sort of division it is.

import { plainName } from "./names.mjs";

const trailingKinds = new RegExp(
    " (Autonomous District|Regional Corporation|Regional State|Province|Region|"
    + "Governorate|State|Oblast'?|Oblisi|Krai|Kray|Prefecture|District|County|Department|"
    + "Division|Municipality|Parish|Rayon|Rajons|Novads|Voblasc'|Voivodeship|Aimak|Aymag|Republic|"
    + "Pradesh|Atoll|Atholhu|Comarca|Sahari)$", "i");
const leadingKinds = new RegExp(
    "^((Urban Municipality|Municipality|Republic|State|Region|County|City|Borough) of|Opština|"
    + "Raionul|Muhafazat) ");

// Words that name nothing alone: "Eastern Province" stays, "Red Sea State" becomes "Red Sea".
const direction = "Northern|Southern|Eastern|Western|Central|North|South|East|West|Northwest|"
    + "Northeast|Southwest|Southeast|Upper|Lower|Middle|Capital|National|Federal|Free|and|"
    + "Northeastern|Southeastern|Northwestern|Southwestern|Metropolitan";
const bareDirection = new RegExp(`^(?:(?:${direction})[ -]?)+$`, "i");

// Indian states keep theirs: without it the names are those of no place.
const keptWhole = /^(Andhra|Arunachal|Himachal|Madhya|Uttar) Pradesh$/;

// Names that are abbreviated, foreign or misspelt in the source.
const ownNames = {
    "AR.07": "Buenos Aires City",
    "BA.01": "Federation of Bosnia and Herzegovina",
    "BY.02": "Homyel",
    "BY.03": "Hrodna",
    "CO.34": "Bogota",
    "ET.SW": "South West Ethiopia",
    "KE.38": "Murang'a",
    "NG.11": "Federal Capital Territory",
    "PE.15": "Lima Region",
    "QA.01": "Doha",
    "QA.06": "Ar Rayyan",
    "RU.06": "Arkhangelsk",
    "RU.42": "Leningrad",
    "RU.66": "Saint Petersburg",
    "RU.89": "Jewish Autonomous Oblast",
    "RU.93": "Transbaikal",
    "VN.79": "Ho Chi Minh City",
};

/// "Municipality of Kranj" and "Kranj Region" give "Kranj"; "Eastern Province" stays whole.
export function shortenProvince(name) {
    const whole = plainName(name).replace(/^St\.? /, "Saint ");
    if (keptWhole.test(whole)) return whole;
    const short = whole.replace(leadingKinds, "").replace(trailingKinds, "");
    return bareDirection.test(short) ? whole : short;
}

/// Map of admin1 code ("SA.14") to the name to show. Two provinces of one country that would
/// come out alike ("Kyiv Oblast" beside "Kyiv") keep their whole names.
export function provinceNames(admin1) {
    const shortKey = ({ code, name }) => code.slice(0, 3) + shortenProvince(name);
    const taken = new Map();
    for (const key of admin1.map(shortKey)) taken.set(key, (taken.get(key) ?? 0) + 1);

    const ordinaryName = (entry) => taken.get(shortKey(entry)) > 1
        ? plainName(entry.name)
        : shortenProvince(entry.name);
    return new Map(
        admin1.map((entry) => [entry.code, ownNames[entry.code] ?? ordinaryName(entry)]));
}
