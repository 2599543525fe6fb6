globalThis.fendrel ??= {};

// The veil over this page: a modal dialog, because browsers draw it above everything, make the rest of the page inert
// for pointer, keyboard and screen readers, and undo all of that when it goes.
fendrel.Cover = class {
    #ask;
    #host = null;
    #dialog = null;
    #shadow = null;
    #details = null;
    #end = null;
    #before = null;
    #raises = 0;
    #blank = null;

    /** @param ask the user wants to be asked now */
    constructor(ask) {
        this.#ask = ask;
    }

    /** @param details what the card says; null covers alone */
    show(details) {
        if (!this.#host) {
            this.#before = this.#circumstances();
            this.#build();
            this.#guard();
            this.#raise();
        }
        if (!details || JSON.stringify(details) === JSON.stringify(this.#details))
            return;
        this.#details = details;
        fendrel.fillCard(this.#dialog, details);
    }

    hide() {
        if (!this.#host)
            return;
        this.#end.abort();
        this.#dialog.close();
        this.#host.remove();
        this.#host = this.#details = null;
        if (this.#blank)
            this.#unblankPage();
        this.#restore();
    }

    #circumstances() {
        // Of a page that is still being read in, the browser itself will set the scroll position.
        const isRead = document.readyState !== "loading";
        return {
            focus: document.activeElement === document.body ? null : document.activeElement,
            scroll: isRead ? { address: location.href, left: scrollX, top: scrollY } : null,
        };
    }

    #restore() {
        const { focus, scroll } = this.#before;
        if (focus?.isConnected)
            focus.focus({ preventScroll: true });
        if (scroll?.address === location.href)
            scrollTo({ left: scroll.left, top: scroll.top, behavior: "instant" });
    }

    #build() {
        const html = name => document.createElementNS("http://www.w3.org/1999/xhtml", name);
        this.#host = html("fendrel-veil");
        this.#shadow = this.#host.attachShadow({ mode: "closed" });
        const sheet = new CSSStyleSheet();
        sheet.replaceSync(fendrel.style);
        this.#shadow.adoptedStyleSheets = [sheet];
        this.#dialog = html("dialog");
        for (const [name, value] of Object.entries({ lang: "en", dir: "ltr", autofocus: "", tabindex: "-1", closedby: "none",
                                                     role: "dialog", "aria-modal": "true", "aria-label": "Fendrel" }))
            this.#dialog.setAttribute(name, value);
        this.#shadow.append(this.#dialog);
    }

    // What a page does can take the veil away or put something above it. It is to be back before that is painted.
    #guard() {
        this.#end = new AbortController();
        const { signal } = this.#end;
        const place = new MutationObserver(() => {
            place.observe(document.documentElement ?? document, { childList: true });
            if (document.documentElement && this.#host?.parentNode !== document.documentElement)
                this.#raise();
            this.#listen(signal);
        });
        place.observe(document, { childList: true });
        place.observe(document.documentElement, { childList: true });
        const dialogs = new MutationObserver(changes => {
            if (changes.some(({ target }) => target.localName === "dialog" && target.open))
                this.#raise();
        });
        dialogs.observe(document, { subtree: true, attributeFilter: ["open"] });
        signal.addEventListener("abort", () => {
            place.disconnect();
            dialogs.disconnect();
        });
        this.#listen(signal);
    }

    // A page that is written anew loses its listeners, and then they are added again.
    #listen(signal) {
        for (const type of fendrel.Cover.inputs)
            addEventListener(type, this.#take, { capture: true, passive: true, signal });
        for (const type of ["beforetoggle", "fullscreenchange", "focusin"])
            addEventListener(type, this.#overtaken, { capture: true, signal });
        this.#dialog.addEventListener("cancel", this.#refuse, { signal });
        this.#dialog.addEventListener("close", this.#closed, { signal });
    }

    static mostRaises = 20; // before one picture is painted

    static inputs = [
        "keydown", "keyup", "keypress", "beforeinput", "input", "compositionstart", "compositionupdate", "compositionend",
        "pointerdown", "pointerup", "pointermove", "pointerover", "pointerout", "pointerenter", "pointerleave",
        "pointercancel", "mousedown", "mouseup", "mousemove", "mouseover", "mouseout", "mouseenter", "mouseleave", "click",
        "dblclick", "auxclick", "contextmenu", "wheel", "touchstart", "touchmove", "touchend", "touchcancel", "dragstart",
        "drag", "dragover", "drop", "copy", "cut", "paste", "selectstart",
    ];

    // Nothing reaches the page. What the browser itself does with it, to press our button for instance, it still does.
    #take = event => {
        event.stopImmediatePropagation();
        if (event.type !== "click" || !event.isTrusted || event.target !== this.#host)
            return;
        const isByPointer = event.detail > 0;
        const hit = isByPointer ? this.#shadow.elementFromPoint(event.clientX, event.clientY) : this.#shadow.activeElement;
        if (hit?.closest("button"))
            this.#ask();
    };

    #overtaken = event => {
        if (event.target !== this.#host)
            queueMicrotask(() => this.#raise());
    };

    #refuse = event => event.preventDefault();

    #closed = () => {
        if (!this.#dialog.open)
            this.#raise();
    };

    #raise() {
        if (!this.#host || !document.documentElement)
            return;
        // A page that takes the veil away each time that it comes back must not hang in that for ever.
        if (++this.#raises > (this.#blank ? 1 : fendrel.Cover.mostRaises)) {
            this.#blankPage();
            return;
        }
        if (this.#raises === 1)
            requestAnimationFrame(() => this.#calm());
        // Taken out and put back it comes above all others. Closing it instead would give the page its focus.
        this.#host.remove();
        this.#dialog.removeAttribute("open");
        document.documentElement.append(this.#host);
        if (document.fullscreenElement)
            document.exitFullscreen().catch(() => {});
        document.exitPointerLock?.();
        this.#dialog.showModal();
        this.#dialog.focus({ preventScroll: true });
    }

    #calm() {
        const wasTooMuch = this.#raises > 1 && this.#blank;
        this.#raises = 0;
        if (wasTooMuch)
            this.#raise();
    }

    // Sheets, unlike elements, come without the page being told.
    #blankPage() {
        if (this.#blank)
            return;
        this.#blank = new CSSStyleSheet();
        this.#blank.replaceSync(":root:not(:has(> fendrel-veil)) > * { display: none !important; }");
        document.adoptedStyleSheets = [...document.adoptedStyleSheets, this.#blank];
    }

    #unblankPage() {
        document.adoptedStyleSheets = [...document.adoptedStyleSheets].filter(sheet => sheet !== this.#blank);
        this.#blank = null;
    }
};
