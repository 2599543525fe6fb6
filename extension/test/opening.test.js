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
    const rows = [
        ["in the window in front", { id: 3, type: "normal" }, [{ windowId: 4 }], [{ windowId: 3, url: a, active: true }, { windowId: 3, url: b, active: false }]],
        ["past a window that is not for browsing", { id: 5, type: "popup" }, [{ windowId: 4 }], [{ windowId: 4, url: a, active: true }, { windowId: 4, url: b, active: false }]],
        ["with no window left", { id: 5, type: "popup" }, [], [{ url: [a, b] }]],
    ];
    for (const [name, front, browsing, expected] of rows)
        assert.deepEqual(await opened([a, "file:///etc/passwd", b], front, browsing), expected, name);
    assert.deepEqual(await opened(["javascript:alert(1)"], { id: 3, type: "normal" }, []), []);
});
