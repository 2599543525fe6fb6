function webAddress(address) {
    const url = URL.canParse(address) ? new URL(address) : null;
    return url && ["http:", "https:"].includes(url.protocol) ? url : null;
}

/**
 * The host that stands for a page's site: lower case, IDN as punycode, without trailing dots, one leading "www.", and
 * the brackets of an IPv6 address.
 * Null for what is no page of the web.
 */
export function siteOf(address) {
    const host = webAddress(address)?.hostname.replace(/\.+$/, "").replace(/^www\./, "").replace(/^\[(.*)\]$/, "$1");
    return host || null;
}

/**
 * What Fendrel is told of an address: the page, without what nobody needs in order to know the page. Empty for what is
 * no page of the web.
 */
export function reportable(address) {
    const url = webAddress(address);
    if (!url)
        return "";
    url.hash = url.username = url.password = "";
    return url.href;
}

export function isWebAddress(address) {
    return typeof address === "string" && webAddress(address) !== null;
}

/**
 * Whether the tab is on its way and tells no address: some browsers forget where it was before they know where it is.
 * Another change follows.
 */
export function isBetweenPages(tab) {
    return tab.status === "loading" && siteOf(tab.url) === null;
}
