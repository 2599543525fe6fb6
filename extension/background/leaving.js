import { isBetweenPages, siteOf } from "../shared/site.js";

const mostSteps = 10;
const mostUnseenSteps = 2; // a step can be one of a frame, and then nothing of the tab changes
const startPatience = 500;  // until a step back shows; when there is nothing behind, nothing shows
const arrivalPatience = 1400; // Fendrel waits for two seconds in all

function stageOf(change, tab, site) {
    if (isBetweenPages(tab) || change.status === "loading" && siteOf(tab.url) === site)
        return "underway";
    if (siteOf(tab.url) !== site)
        return "left";
    return change.status === "complete" || change.url ? "moved" : null;
}

/**
 * Takes a tab off a site: back to the last page that is of another site, else to a new-tab page. How far back that is
 * nobody tells an extension, so it goes back until it is there.
 */
export class Leaving {
    onStayed = tabId => {}; // the tab could not be taken off the site
    #tabs;
    #stepBack;
    #newTabPages;
    #underway = new Map(); // of each tab: what takes its changes

    /**
     * @param stepBack (tabId) leaves, as far as it can tell how, in one step; false when there is nothing behind
     * @param newTabPages what `tabs.update` takes for a new-tab page, the best first
     */
    constructor(tabs, stepBack, newTabPages) {
        this.#tabs = tabs;
        this.#stepBack = stepBack;
        this.#newTabPages = newTabPages;
    }

    async leave(tabId) {
        if (this.#underway.has(tabId))
            return;
        this.#underway.set(tabId, () => {});
        try {
            const site = siteOf((await this.#tabs.get(tabId)).url);
            if (site !== null && !(await this.#wentBack(tabId, site)) && !(await this.#becameNew(tabId, site)))
                this.onStayed(tabId);
        } catch {
            // The tab is gone.
        } finally {
            this.#underway.delete(tabId);
        }
    }

    tabUpdated(tabId, change, tab) {
        this.#underway.get(tabId)?.(change, tab);
    }

    async #wentBack(tabId, site) {
        let unseen = 0;
        for (let step = 0; step < mostSteps && unseen < mostUnseenSteps; ++step) {
            const outcome = this.#outcome(tabId, site);
            if (!(await this.#stepBack(tabId).catch(() => false)))
                return false;
            const seen = await outcome;
            if (seen === "left" || seen === "late")
                return seen === "left";
            unseen += seen === "unseen" ? 1 : 0;
        }
        return false;
    }

    // New-tab pages can be on the network, and then they may not come.
    async #becameNew(tabId, site) {
        for (const page of this.#newTabPages) {
            const outcome = this.#outcome(tabId, site);
            await this.#tabs.update(tabId, page);
            if (await outcome === "left")
                return true;
        }
        return false;
    }

    /** "left" for another site, "moved" within this one, "unseen" when nothing moved, or "late". */
    #outcome(tabId, site) {
        return new Promise(resolve => {
            const finish = outcome => {
                if (this.#underway.get(tabId) === take)
                    this.#underway.set(tabId, () => {});
                resolve(outcome);
            };
            const take = (change, tab) => {
                const stage = stageOf(change, tab, site);
                if (stage === null)
                    return;
                clearTimeout(patience);
                if (stage === "underway")
                    patience = setTimeout(finish, arrivalPatience, "late");
                else
                    finish(stage);
            };
            let patience = setTimeout(finish, startPatience, "unseen");
            this.#underway.set(tabId, take);
        });
    }
}
