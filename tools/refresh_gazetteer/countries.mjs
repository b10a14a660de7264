// English country names, in plain letters.

import { plainName } from "./names.mjs";

const fromCldr = new Intl.DisplayNames("en", { type: "region", style: "long" });

// Where the name an English reader looks for differs from that of CLDR, or where CLDR has changed
// its mind between versions, so that the list does not depend on the version of node.
const ownNames = {
    AX: "Aland Islands", BL: "Saint Barthelemy", CD: "Democratic Republic of the Congo",
    CG: "Republic of the Congo", CI: "Ivory Coast", CV: "Cape Verde", CW: "Curacao",
    CZ: "Czechia", HK: "Hong Kong", MM: "Myanmar", MK: "North Macedonia", MO: "Macau",
    PS: "Palestine", RE: "Reunion", ST: "Sao Tome and Principe", SZ: "Eswatini",
    TL: "East Timor", TR: "Turkey", XK: "Kosovo",
};

/// The name for an ISO 3166 code of two letters (XK: Kosovo). Throws for a code without a name.
export function countryName(code) {
    const name = ownNames[code] ?? fromCldr.of(code);
    if (name === code) throw new Error(`no country name for ${code}`);
    return plainName(name.replace(/^St\. /, "Saint ").replace(/ & /g, " and "));
}
