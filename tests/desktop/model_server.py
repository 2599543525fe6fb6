#!/usr/bin/env python3
"""A stand-in for a model server, for tests: speaks both protocols, and misbehaves when told to.

It prints one line with its address when it listens. Tests talk to it at its own paths:
    GET  /stand-in/requests/N   waits for N requests of the model at least, then lists all of them, the newest last
    POST /stand-in/behaviour    one of BEHAVIOURS, from now on
    POST /stand-in/answers      the rules of --answers, anew
    POST /stand-in/release      lets every answer go that is late
A rule is {"if": text, "answer": {property: value}}. The first whose text is in a question's prompt gives its answer;
what it leaves out, and every other question, is answered with the first of the schema's choices, false, or a word.
"""

import argparse
import contextlib
import http.server
import json
import os
import select
import socket
import socketserver
import sys
import threading

BEHAVIOURS = ("well", "late", "cut", "prose", "error", "close", "flood", "loading")
LOADING = {"error": {"code": 503, "message": "Loading model", "type": "unavailable_error"}}


class Server(socketserver.ThreadingMixIn, http.server.HTTPServer):
    """What all connections share; `changed` guards it."""

    daemon_threads = True

    def __init__(self, options):
        self.address_family = socket.AF_UNIX if options.socket else socket.AF_INET
        self.models = options.model or ["stand-in"]
        self.is_ollama = options.protocol == "ollama"
        self.behaviour = options.behaviour
        self.rules = json.load(options.answers) if options.answers else []
        self.requests = []
        self.changed = threading.Condition()
        self.released, self.release = os.pipe()
        super().__init__(options.socket or ("127.0.0.1", options.port), Handler)

    def server_bind(self):
        socketserver.TCPServer.server_bind(self)  # the base class would look a name up

    def record(self, entry):
        with self.changed:
            self.requests.append(entry)
            self.changed.notify_all()


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    disable_nagle_algorithm = True

    def setup(self):
        if self.server.address_family == socket.AF_UNIX:
            self.disable_nagle_algorithm = False
        super().setup()

    def log_message(self, *_):
        pass

    def reply(self, content, status=200):
        body = json.dumps(content).encode()
        self.send_response(status)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def do_GET(self):
        server = self.server
        if self.path.startswith("/stand-in/requests/"):
            with server.changed:
                server.changed.wait_for(lambda: len(server.requests) >= int(self.path.rsplit("/", 1)[1]))
                self.reply(server.requests)
        elif server.behaviour == "loading":
            self.reply(LOADING, 503)
        elif self.path == "/v1/models":
            self.reply({"object": "list", "data": [{"id": model, "object": "model"} for model in server.models]})
        elif self.path == "/health" and not server.is_ollama:
            self.reply({"status": "ok"})
        elif self.path == "/api/ps" and server.is_ollama:
            self.reply({"models": [{"name": server.models[-1]}]})
        elif self.path == "/api/tags" and server.is_ollama:
            self.reply({"models": [{"name": model, "details": {"family": "llama"}} for model in server.models]})
        else:
            self.reply({"error": "not found"}, 404)

    def do_POST(self):
        server = self.server
        body = self.rfile.read(int(self.headers["Content-Length"]))
        if self.path == "/stand-in/behaviour":
            server.behaviour = body.decode()
            return self.reply(server.behaviour in BEHAVIOURS)
        if self.path == "/stand-in/answers":
            server.rules = json.loads(body)
            return self.reply(len(server.rules))
        if self.path == "/stand-in/release":
            os.write(server.release, b"x")
            return self.reply(True)
        if self.path != ("/api/chat" if server.is_ollama else "/v1/chat/completions"):
            return self.reply({"error": "not found"}, 404)
        return self.answer(json.loads(body))

    def answer(self, question):
        server = self.server
        server.record({"path": self.path, "question": question})
        if server.behaviour == "late":
            ready, _, _ = select.select([self.connection, server.released], [], [])
            if self.connection in ready:
                server.record({"path": self.path, "aborted": True})
                self.close_connection = True
                return
            os.read(server.released, 1)
        if server.behaviour == "loading":
            return self.reply(LOADING, 503)
        if server.behaviour == "error":
            return self.reply({"error": "out of memory"}, 500)
        if server.behaviour == "close":
            self.close_connection = True
            return
        if server.behaviour == "flood":
            self.send_response(200)
            self.end_headers()
            self.close_connection = True
            with contextlib.suppress(OSError):
                while True:
                    self.wfile.write(b" " * 65536)
            return
        text, reason = self.text(question), "stop"
        if server.behaviour == "cut":
            text, reason = text[: len(text) // 2], "length"
        message = {"role": "assistant", "content": text}
        if server.is_ollama:
            self.reply({"model": question["model"], "message": message, "done": True, "done_reason": reason})
        else:
            self.reply({"object": "chat.completion", "choices": [{"finish_reason": reason, "message": message}]})

    def text(self, question):
        schema = question.get("format") or question.get("response_format", {}).get("json_schema", {}).get("schema")
        if not schema or self.server.behaviour == "prose":
            return "It looks like documentation to me."
        prompt = question["messages"][-1]["content"]
        scripted = next((rule["answer"] for rule in self.server.rules if rule["if"] in prompt), {})
        return json.dumps({name: scripted.get(name, default(kind)) for name, kind in schema["properties"].items()})


def default(schema):
    if "enum" in schema:
        return schema["enum"][0]
    return False if schema["type"] == "boolean" else "something"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--port", type=int, default=0, help="on the loopback address; one that is free without it")
    parser.add_argument("--socket", help="listen on this Unix socket instead")
    parser.add_argument("--protocol", choices=("chat", "ollama"), default="chat")
    parser.add_argument("--model", action="append", help="offer it; the last one is loaded")
    parser.add_argument("--behaviour", choices=BEHAVIOURS, default="well")
    parser.add_argument("--answers", type=argparse.FileType(), metavar="FILE", help="a JSON list of rules")
    options = parser.parse_args()
    with Server(options) as server:
        print(options.socket or f"127.0.0.1:{server.server_address[1]}", flush=True)
        try:
            server.serve_forever()
        except KeyboardInterrupt:
            sys.exit(0)


if __name__ == "__main__":
    main()
