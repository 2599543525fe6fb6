import { siteOf } from "../shared/site.js";

// In the order in which they build on one another.
const inFrames = ["content/media.js", "content/page.js"];
const inPage = ["content/style.js", "content/card.js", "content/cover.js", ...inFrames];
const styles = ["content/page.css"];

/** Our scripts in pages: brings them there, and talks to them. They are in no page that never was to be veiled. */
export class Pages {
    onAsk = tabId => {};
    details = tabId => null; // what the page in that tab shows on its veil, or null
    #scripting;
    #hasLifeline;
    #ports = new Map(); // of each tab: the page and its frames
    #guarded = new Set();
    #guarding;

    /** @param hasLifeline whether scripts in pages die without a word when the extension goes away */
    constructor(scripting, hasLifeline) {
        this.#scripting = scripting;
        this.#hasLifeline = hasLifeline;
        // What an earlier life of ours left.
        this.#guarding = scripting.unregisterContentScripts().catch(() => {});
    }

    connected(port) {
        const tabId = port.sender?.tab?.id;
        if (tabId === undefined)
            return;
        const ports = this.#ports.get(tabId) ?? new Set();
        this.#ports.set(tabId, ports.add(port));
        port.onDisconnect.addListener(() => {
            ports.delete(port);
            if (ports.size === 0 && this.#ports.get(tabId) === ports)
                this.#ports.delete(tabId);
        });
        port.onMessage.addListener(message => {
            if (message?.type === "ask")
                this.onAsk(tabId);
        });
        const details = this.details(tabId);
        // A tab can have gone to another site while our script was on its way into the page.
        const isRight = port.name !== "page" || siteOf(port.sender.url) === details?.site;
        this.#tell(port, isRight ? details : null);
    }

    /** Whether the page in that tab hears us, so that it shows the last that it was told. */
    shows(tabId) {
        return [...this.#ports.get(tabId) ?? []].some(port => port.name === "page");
    }

    cover(tabId, details) {
        for (const port of this.#ports.get(tabId) ?? [])
            this.#tell(port, details);
        this.#bring(tabId);
    }

    uncover(tabId) {
        for (const port of this.#ports.get(tabId) ?? [])
            this.#tell(port, null);
    }

    /** Pages of these sites are covered from their very beginning, and ask afterwards whether that is right. */
    guard(sites) {
        this.#guarding = this.#guarding.then(async () => {
            const gone = [...this.#guarded].filter(site => !sites.has(site));
            const added = [...sites].filter(site => !this.#guarded.has(site));
            this.#guarded = sites;
            for (const site of gone)
                await this.#scripting.unregisterContentScripts({ ids: this.#guards(site).map(guard => guard.id) }).catch(() => {});
            // A host that no pattern can name is covered a moment later, when its tab tells of the new page.
            for (const site of added)
                await this.#scripting.registerContentScripts(this.#guards(site)).catch(() => {});
        });
        return this.#guarding;
    }

    #guards(site) {
        const isAddress = site.includes(":");
        const where = {
            matches: isAddress ? [`*://[${site}]/*`] : [`*://${site}/*`, `*://www.${site}/*`],
            runAt: "document_start",
            persistAcrossSessions: false,
        };
        const guards = [{ ...where, id: `cover ${site}`, css: styles, js: ["content/first.js", ...inPage] }];
        if (this.#hasLifeline)
            guards.push({ ...where, id: `lifeline ${site}`, js: ["content/lifeline.js"], world: "MAIN" });
        return guards;
    }

    async #bring(tabId) {
        const bring = (files, more, where) =>
            this.#scripting.executeScript({ target: { tabId, ...where }, files, injectImmediately: true, ...more }).catch(() => {});
        // All of this fails where browsers let no extension in; then the question comes without a veil.
        this.#scripting.insertCSS({ target: { tabId }, files: styles, origin: "USER" }).catch(() => {});
        if (this.#hasLifeline)
            bring(["content/lifeline.js"], { world: "MAIN" });
        await bring(inPage);
        // Only after the page itself, which would otherwise be taken for one of its frames.
        bring(inFrames, {}, { allFrames: true });
    }

    #tell(port, details) {
        try {
            port.postMessage(details ? { type: "cover", details } : { type: "uncover" });
        } catch {
            // The page is leaving.
        }
    }
}
