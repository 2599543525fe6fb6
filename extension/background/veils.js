import { shades } from "../shared/colors.js";
import { isLetBe } from "../shared/messages.js";
import { isBetweenPages, siteOf } from "../shared/site.js";

/**
 * Which tabs are veiled. Fendrel says so, and a veil is of one site in one tab: it ends with the tab, when the tab goes
 * to another site, and when Fendrel cannot be reached.
 */
export class Veils {
    onClosed = tabId => {};  // a veiled tab is no more
    onDropped = tabId => {}; // the tab went to another site
    #tabs;
    #pages;
    #veils = new Map();

    constructor(tabs, pages) {
        this.#tabs = tabs;
        this.#pages = pages;
    }

    site(tabId) {
        return this.#veils.get(tabId)?.site ?? null;
    }

    /** What a page in that tab is to show; null when it is not veiled. */
    details(tabId) {
        return this.#veils.get(tabId) ?? null;
    }

    async put({ tabId, site, mode, color }) {
        const present = this.#veils.get(tabId);
        const isSame = present?.site === site && present.mode === mode && present.shades.fill === color;
        // It is put again whenever its tab is told of, and a page can rename itself many times a second.
        if (isSame && this.#pages.shows(tabId))
            return;
        const veil = { site, mode, shades: shades(color) };
        this.#veils.set(tabId, veil);
        const tab = await this.#tabs.get(tabId).catch(() => null);
        if (this.#veils.get(tabId) !== veil)
            return; // lifted, or put anew, while we looked
        if (!tab) {
            this.tabRemoved(tabId);
        } else if (siteOf(tab.url) !== site) {
            this.#forget(tabId);
        } else {
            this.#guardSites();
            this.#pages.cover(tabId, veil);
        }
    }

    lift(tabId) {
        if (this.#forget(tabId))
            this.#pages.uncover(tabId);
    }

    liftAll() {
        for (const tabId of [...this.#veils.keys()])
            this.lift(tabId);
    }

    /**
     * What Fendrel tells of itself can come without a word on a veil: it takes for gone those of tabs that the user was
     * to leave, and they can still be there.
     */
    review({ focus, page }) {
        if (!focus)
            this.liftAll();
        else if (page && isLetBe(page) && this.site(page.tabId) === page.site)
            this.lift(page.tabId);
    }

    tabUpdated(tabId, change, tab) {
        const veil = this.#veils.get(tabId);
        if (!veil || isBetweenPages(tab))
            return;
        if (siteOf(tab.url) !== veil.site) {
            this.lift(tabId);
            this.onDropped(tabId);
        } else if (change.status || change.audible) {
            this.#pages.cover(tabId, veil);
        }
    }

    tabRemoved(tabId) {
        if (this.#forget(tabId))
            this.onClosed(tabId);
    }

    #forget(tabId) {
        const wasVeiled = this.#veils.delete(tabId);
        if (wasVeiled)
            this.#guardSites();
        return wasVeiled;
    }

    #guardSites() {
        this.#pages.guard(new Set([...this.#veils.values()].map(veil => veil.site)));
    }
}
