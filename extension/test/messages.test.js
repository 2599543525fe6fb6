import assert from "node:assert/strict";
import { test } from "node:test";
import { understood } from "../shared/messages.js";

const veil = { type: "veil", tabId: 7, site: "social.example", mode: "Social", color: "#F0644f" };
const page = {
    tabId: 7, site: "social.example", state: "judged", mode: { name: "Social", color: "#f0644f" }, isCurrent: false, what: "chat",
    certainty: "likely", source: "model", isAllowed: false,
};
const state = { type: "state", mode: { name: "Building", color: "#2f7df0" }, focus: true, page };

test("messages that are understood", () => {
    const rows = [
        veil,
        { ...veil, added: "later" },
        { type: "unveil", tabId: 0 },
        { type: "back", tabId: 2 ** 40 },
        { type: "open", urls: [] },
        { type: "connected" },
        state,
        { ...state, page: null },
        { ...state, page: { ...page, mode: null } },
        { ...state, page: { tabId: 7, site: "social.example", state: "asking" } },
    ];
    for (const row of rows)
        assert.equal(understood(row), row, JSON.stringify(row));
});

test("messages that are skipped", () => {
    const rows = [
        undefined, null, 3, "veil", [], [veil], {}, { type: 3 }, { type: "" },
        { type: "toString" }, { type: "__proto__" }, { type: "unheard" },
        { type: "unveil" }, { type: "unveil", tabId: "7" }, { type: "unveil", tabId: -1 }, { type: "unveil", tabId: 1.5 },
        { type: "unveil", tabId: 2 ** 60 }, Object.create({ type: "unveil", tabId: 7 }),
        { ...veil, site: "" }, { ...veil, site: null }, { ...veil, mode: {} },
        { ...veil, color: "red" }, { ...veil, color: "#12345" }, { ...veil, color: "#f0644f; background: url(x)" },
        { type: "open" }, { type: "open", urls: "https://a.example/" }, { type: "open", urls: ["https://a.example/", 3] },
        { ...state, mode: null }, { ...state, focus: "yes" }, { ...state, page: undefined },
        { ...state, page: { ...page, certainty: "perhaps" } }, { ...state, page: { ...page, mode: "Social" } },
        { ...state, page: { tabId: 7, site: "social.example", state: "judged" } },
    ];
    for (const row of rows)
        assert.equal(understood(row), null, JSON.stringify(row));
});
