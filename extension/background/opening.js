import { isWebAddress } from "../shared/site.js";

const mostAddresses = 100; // more than anybody had open on purpose, and few enough for the browser to live through

/** Opens pages of the web in the window that the user browses in, the first of them in front. */
export async function openAddresses(browser, urls) {
    const addresses = urls.filter(isWebAddress).slice(0, mostAddresses);
    if (addresses.length === 0)
        return;
    const front = await browser.windows.getLastFocused().catch(() => null);
    const [other] = await browser.tabs.query({ active: true, windowType: "normal" });
    const windowId = front?.type === "normal" ? front.id : other?.windowId;
    if (windowId === undefined) {
        await browser.windows.create({ url: addresses });
        return;
    }
    for (const [index, url] of addresses.entries())
        await browser.tabs.create({ windowId, url, active: index === 0 });
}
