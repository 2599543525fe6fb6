globalThis.fendrel ??= {};

// Keeps what plays in this document quiet, and lets go on what it stopped.
fendrel.Media = class {
    #stopped = new Set();
    #end = null;
    #stop = event => this.#pause(event.target);

    hold() {
        this.#end ??= new AbortController();
        this.#look(document);
        addEventListener("load", () => this.#look(document), { signal: this.#end.signal });
    }

    release() {
        this.#end?.abort();
        this.#end = null;
        for (const media of this.#stopped) {
            if (media.isConnected)
                media.play().catch(() => {});
        }
        this.#stopped.clear();
    }

    // The events of media leave neither their element nor its shadow tree, so each tree is listened to.
    #look(tree) {
        tree.addEventListener("play", this.#stop, { capture: true, signal: this.#end.signal });
        for (const element of tree.querySelectorAll("*")) {
            this.#pause(element);
            const inner = this.#shadow(element);
            if (inner)
                this.#look(inner);
        }
    }

    #shadow(element) {
        if (!(element instanceof HTMLElement))
            return null;
        return globalThis.chrome?.dom?.openOrClosedShadowRoot?.(element) ?? element.openOrClosedShadowRoot ?? element.shadowRoot;
    }

    #pause(element) {
        if (!(element instanceof HTMLMediaElement) || element.paused)
            return;
        element.pause();
        this.#stopped.add(element);
    }
};
