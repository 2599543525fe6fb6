import { mock } from "node:test";

// As much of a browser as the extension's logic sees: tabs that exist, events that are told, ports that are written to.

export class FakeTabs {
    tabs = new Map();
    updates = [];
    created = [];

    put(id, url, more = {}) {
        this.tabs.set(id, { id, windowId: 1, index: 4, url, title: `Title of ${url}`, status: "complete", active: true, ...more });
        return this.tabs.get(id);
    }

    async get(id) {
        if (!this.tabs.has(id))
            throw new Error(`No tab with id: ${id}.`);
        return { ...this.tabs.get(id) };
    }

    async query() {
        return [...this.tabs.values()].filter(tab => tab.active).map(tab => ({ ...tab }));
    }

    async update(id, change) {
        this.updates.push([id, change]);
    }

    async create(tab) {
        this.created.push(tab);
    }
}

export class FakePort {
    messages = [];
    isOpen = true;
    #listeners = { message: [], disconnect: [] };
    onMessage = { addListener: listener => this.#listeners.message.push(listener) };
    onDisconnect = { addListener: listener => this.#listeners.disconnect.push(listener) };

    constructor(name = "", sender = {}) {
        this.name = name;
        this.sender = sender;
    }

    postMessage(message) {
        if (!this.isOpen)
            throw new Error("Attempt to use a disconnected port object");
        this.messages.push(message);
    }

    say(message) {
        this.#listeners.message.forEach(listener => listener(message, this));
    }

    drop(error) {
        this.isOpen = false;
        this.error = error;
        this.#listeners.disconnect.forEach(listener => listener(this));
    }
}

export class FakeScripting {
    registered = new Map();
    injections = [];
    refuses = false;

    async registerContentScripts(scripts) {
        if (this.refuses)
            throw new Error("Invalid match pattern");
        for (const script of scripts) {
            if (this.registered.has(script.id))
                throw new Error(`Duplicate script ID '${script.id}'`);
            this.registered.set(script.id, script);
        }
    }

    async unregisterContentScripts({ ids } = { ids: [...this.registered.keys()] }) {
        for (const id of ids) {
            if (!this.registered.delete(id))
                throw new Error(`Nonexistent script ID '${id}'`);
        }
    }

    async executeScript(injection) {
        if (this.refuses)
            throw new Error("Cannot access contents of the page");
        this.injections.push(injection);
    }

    async insertCSS() {
        if (this.refuses)
            throw new Error("Cannot access contents of the page");
    }
}

/** Lets everything happen that waits for nothing but its turn. */
export async function settled() {
    for (let turn = 0; turn < 20; ++turn)
        await Promise.resolve();
}

/** Timers run out when a test says so. */
export function stopClock() {
    const apis = ["setTimeout"];
    // The runner of Node 18 knows no options here.
    mock.timers.enable(process.version.startsWith("v18.") ? apis : { apis });
}
