// Firefox has its interfaces in "browser" alone with promises, Chromium for most of its life in "chrome" alone.
export const browser = globalThis.browser ?? globalThis.chrome;

export const isFirefox = browser?.runtime?.getURL("").startsWith("moz-extension:") ?? false;

/** Which pages Fendrel can know of at all; the manifest asks for the same. */
export const everySite = { origins: ["http://*/*", "https://*/*"] };
