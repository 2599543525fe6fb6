globalThis.fendrel ??= {};

// This document's end of the line to our background: asks whether it is veiled, and lifts the veil when told so or when
// nobody is there to tell.
fendrel.Page = class {
    #media = new fendrel.Media();
    #cover = fendrel.Cover && window === window.top ? new fendrel.Cover(() => this.#port?.postMessage({ type: "ask" })) : null;
    #port = null;

    constructor() {
        // What is kept for the way back loses its line, and comes back as it was left: it has to ask anew.
        addEventListener("pagehide", () => this.#hangUp());
        addEventListener("pageshow", event => {
            if (event.persisted)
                this.connect();
        });
    }

    get isConnected() {
        return this.#port !== null;
    }

    connect() {
        this.#hangUp();
        let port;
        try {
            port = fendrel.runtime.connect({ name: this.#cover ? "page" : "frame" });
        } catch {
            this.#release(); // the extension is no more
            return;
        }
        this.#port = port;
        port.onMessage.addListener(message => message.type === "cover" ? this.#hold(message.details) : this.#release());
        port.onDisconnect.addListener(() => {
            if (this.#port === port) {
                this.#port = null;
                this.#release();
            }
        });
    }

    coverFirst() {
        this.#hold(null);
        this.connect();
    }

    #hold(details) {
        this.#cover?.show(details);
        this.#media.hold();
    }

    #release() {
        this.#cover?.hide();
        this.#media.release();
    }

    #hangUp() {
        this.#port?.disconnect();
        this.#port = null;
    }
};

fendrel.runtime = (globalThis.browser ?? globalThis.chrome).runtime;
// What is meant for frames can come so late that it is in the next page of the tab, which is none.
if ((fendrel.Cover || window !== window.top) && !fendrel.page?.isConnected) {
    fendrel.page ??= new fendrel.Page();
    if (fendrel.coversFirst)
        fendrel.page.coverFirst();
    else
        fendrel.page.connect();
}
