// What popup and options page say about what Fendrel tells.

const advice = {
    searching: { status: "Connecting", text: "Looking for Fendrel." },
    absent: {
        status: "Not connected",
        text: "Fendrel has not been found on this computer. Install it and start it once: it makes itself known to this browser, and the connection comes by itself.",
    },
    away: { status: "Not connected", text: "Fendrel is not running. Start it, and the connection comes by itself." },
    connected: { status: "Connected", text: "Fendrel knows which site is in front in this browser." },
};

/** How we stand with Fendrel: a word or two, and a sentence on what that means or what to do. */
export function connectionWords(phase) {
    return advice[phase];
}

const certainties = { certain: "Certain", likely: "Likely", unsure: "Unsure" };
const sources = { rule: "listed in your modes", model: "judged by the language model", you: "as you said" };

/** The judgement of a page, in parts: what it belongs to, and why Fendrel thinks so. */
export function judgementWords({ site, state, mode, isCurrent, isAllowed, what, certainty, source }) {
    if (state === "asking")
        return { belongs: "is being judged", mode: null, notes: [] };
    if (state === "unknown")
        return { belongs: "has not been judged yet", mode: null, notes: [] };
    return {
        belongs: mode ? "belongs to" : "belongs to no mode",
        mode,
        notes: [
            what && what !== site ? what : null,
            `${certainties[certainty]}, ${sources[source]}`,
            isCurrent ? "Fits the mode that you are in" : null,
            isAllowed ? "Let through for this focus session" : null,
        ].filter(note => note !== null),
    };
}

export const privateWindowNote = "Where it is allowed, sites in them are judged and veiled like all others, "
    + "and Fendrel remembers on this computer what it found or was told about a site, with no regard to the kind of window. "
    + "Pages in them are never among those that it offers to bring back.";

/** Where each browser has the switch for private windows, in its own words. */
export function privateWindowWords(userAgent, isFirefox) {
    if (isFirefox) {
        return {
            kind: "private windows",
            steps: ["Open the menu, and choose Extensions and themes.", "Choose Fendrel.", "Set Run in Private Windows to Allow."],
        };
    }
    const [, address, kind, option] = [
        [/Edg\//, "edge://extensions", "InPrivate windows", "Allow in InPrivate"],
        [/OPR\//, "opera://extensions", "private windows", "Allow in private"],
        [/Vivaldi\//, "vivaldi://extensions", "private windows", "Allow in Incognito"],
        [/Chrome\//, "chrome://extensions", "Incognito windows", "Allow in Incognito"],
    ].find(([name]) => name.test(userAgent)) ?? [null, "chrome://extensions", "private windows", "Allow in Incognito"];
    return { kind, steps: [`Open ${address} in a new tab.`, "Under Fendrel, choose Details.", `Turn on ${option}.`] };
}
