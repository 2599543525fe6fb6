import assert from "node:assert/strict";
import { test } from "node:test";
import { openAddresses } from "../background/opening.js";

const opened = async (urls, front, browsing) => {
    const made = [];
    await openAddresses({
        windows: { getLastFocused: async () => front, create: async window => made.push(window) },
        tabs: { query: async () => browsing, create: async tab => made.push(tab) },
    }, urls);
    return made;
};

test("pages are opened where the user browses", async () => {
    const [a, b] = ["https://a.example/", "https://b.example/"];
    const [both, browsing] = [id => [{ windowId: id, url: a, active: true }, { windowId: id, url: b, active: false }], [{ windowId: 4, active: true }]];
    const isThere = [{ windowId: 4, url: `${a}#part`, active: true }], isPrivate = [{ windowId: 4, url: a, active: true, incognito: true }];
    const rows = [
        ["in the window in front", { id: 3, type: "normal" }, browsing, both(3)],
        ["past a window that is not for browsing", { id: 5, type: "popup" }, browsing, both(4)],
        ["past a private window", { id: 5, type: "normal", incognito: true }, browsing, both(4)],
        ["with no window left", { id: 5, type: "popup" }, [], [{ url: [a, b] }]],
        ["with none but a private one", { id: 4, type: "normal", incognito: true }, isPrivate, [{ url: [a, b] }]],
        ["once", { id: 4, type: "normal" }, isThere, [{ windowId: 4, url: b, active: true }]],
    ];
    for (const [name, front, browsing, expected] of rows)
        assert.deepEqual(await opened([a, "file:///etc/passwd", b], front, browsing), expected, name);
    assert.deepEqual(await opened(["javascript:alert(1)"], { id: 3, type: "normal" }, []), []);
});
