"""Just enough of a chat server (RFC 2812) for the chat program to have a room with people in it."""

import pathlib
import socketserver
import threading

ROOM = "#friday"
TALK = [("ines", "has anyone seen the new place by the river?"),
        ("tove", "yes! the soup is worth the walk"),
        ("maurus", "Friday at noon, then?"),
        ("noor", "count me in. robin, are you coming?")]


class Chat(socketserver.ThreadingTCPServer):
    daemon_threads = True

    def __init__(self):
        super().__init__(("127.0.0.1", 0), Visitor)
        self.may_enter = threading.Event()
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def furnish(self, home):
        """Tells the chat program where we are."""
        file = pathlib.Path(home) / ".config/hexchat/servlist.conf"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(f"v=2.16.1\n\nN=Friends\nE=UTF-8 (Unicode)\nF=27\nD=0\nS=127.0.0.1/{self.server_address[1]}\n\n")

    def open_room(self):
        """Takes the visitor into the room; before, the program's own messages at its start would stand in it."""
        self.may_enter.set()


class Visitor(socketserver.StreamRequestHandler):
    def say(self, line):
        self.wfile.write(f"{line}\r\n".encode())

    def handle(self):
        nick = "robin"
        for raw in self.rfile:
            command, _, rest = raw.decode(errors="replace").strip().partition(" ")
            if command == "NICK":
                nick = rest
            elif command == "PING":
                self.say(f":chat.local PONG chat.local {rest}")
            elif command == "USER":
                self.say(f":chat.local 001 {nick} :Welcome")
                self.say(f":chat.local 376 {nick} :End of message")
                threading.Thread(target=self.enter, args=[nick], daemon=True).start()

    def enter(self, nick):
        self.server.may_enter.wait()
        try:
            self.say(f":{nick}!{nick}@local JOIN {ROOM}")
            self.say(f":chat.local 332 {nick} {ROOM} :Lunch on Friday? Say where.")
            self.say(f":chat.local 353 {nick} = {ROOM} :@ines tove maurus noor {nick}")
            self.say(f":chat.local 366 {nick} {ROOM} :End of names")
            for who, text in TALK:
                self.say(f":{who}!{who}@local PRIVMSG {ROOM} :{text}")
        except OSError:
            pass  # the visitor has left
