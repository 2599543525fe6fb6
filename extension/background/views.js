import { Phase } from "./connection.js";

/** What popup and options page show: how we stand with Fendrel, and what it last told of its state. */
export class Views {
    #ports = new Set();
    #shown = { phase: Phase.searching, reason: "", state: null, lastPage: null };

    connected(port) {
        this.#ports.add(port);
        port.onDisconnect.addListener(() => this.#ports.delete(port));
        port.postMessage(this.#shown);
    }

    phaseChanged(phase, reason) {
        // Without Fendrel nothing that it said holds any more.
        this.#show(phase === Phase.connected ? { phase, reason } : { phase, reason, state: null, lastPage: null });
    }

    stateChanged({ mode, focus, page }) {
        // The options page is itself in front while it is read, so it shows the page before.
        this.#show({ state: { mode, focus, page }, lastPage: page ?? this.#shown.lastPage });
    }

    #show(change) {
        this.#shown = { ...this.#shown, ...change };
        for (const port of this.#ports)
            port.postMessage(this.#shown);
    }
}
