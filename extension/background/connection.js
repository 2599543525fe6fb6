const shortestWait = 500;
const longestWait = 2500;

/** How far we are on the way to Fendrel. */
export const Phase = {
    searching: "searching", // the relay has not said a word yet
    absent: "absent",       // there is no relay to be started, or it ended
    away: "away",           // the relay cannot reach the application
    connected: "connected",
};

/**
 * The line to Fendrel: a relay that the browser starts for us. It is kept up for as long as we live.
 *
 * A port always opens, and closes at once when there is nothing behind it. So the relay's first word, and not the port,
 * tells that somebody is there.
 */
export class Connection {
    onOpened = () => {};
    onMessage = message => {};
    onPhase = phase => {};

    phase = Phase.searching;
    reason = ""; // in the browser's words, why there is no relay
    #connect;
    #errorOf;
    #port = null;
    #wait = shortestWait;

    /**
     * @param connect opens a port to the relay; may throw
     * @param errorOf (port) the error that just closed it, if any
     */
    constructor(connect, errorOf) {
        this.#connect = connect;
        this.#errorOf = errorOf;
    }

    open() {
        if (this.#port)
            return;
        try {
            this.#port = this.#connect();
        } catch (error) {
            this.#lost(error.message);
            return;
        }
        const port = this.#port;
        port.onMessage.addListener(message => this.#received(message));
        port.onDisconnect.addListener(() => this.#lost(this.#errorOf(port)?.message ?? ""));
        this.onOpened();
    }

    send(message) {
        try {
            this.#port?.postMessage(message);
        } catch {
            // It is closing; what closes tells us so itself.
        }
    }

    #received(message) {
        this.#wait = shortestWait;
        if (message?.type === "connected")
            this.#enter(Phase.connected);
        else if (message?.type === "disconnected")
            this.#enter(Phase.away);
        else
            this.onMessage(message);
    }

    #lost(reason) {
        this.#port = null;
        this.reason = reason;
        this.#enter(Phase.absent);
        setTimeout(() => this.open(), this.#wait);
        this.#wait = Math.min(2 * this.#wait, longestWait);
    }

    #enter(phase) {
        this.phase = phase;
        this.onPhase(phase);
    }
}
