"""The relay as browsers run it: a process with a browser's pipes on one side and the application's socket on the other."""

import contextlib
import json
import os
import pathlib
import select
import socket
import struct
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
DEADLINE = 30.0   # seconds, for what should come at once
NOTICED = 3.0     # seconds after a restart of the application

STATE, ASK = {"type": "state"}, {"type": "ask", "tabId": 1}
CONNECTED, DISCONNECTED = {"type": "connected"}, {"type": "disconnected"}


def tab(number, title=""):
    return {"type": "tab", "tabId": number, "url": "http://social.example/", "title": title}


class Relay:
    """The browser's end of a relay."""

    def __init__(self, home, **environment):
        self.process = subprocess.Popen([PROGRAM], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                        bufsize=0, env={**os.environ, "XDG_DATA_HOME": str(home), **environment})

    def write(self, data):
        deadline = time.monotonic() + DEADLINE
        os.set_blocking(self.process.stdin.fileno(), False)
        while data:
            wait_for(self.process.stdin, select.POLLOUT, deadline)
            data = data[self.process.stdin.write(data) or 0:]

    def say(self, *messages):
        texts = (json.dumps(message).encode() for message in messages)
        self.write(b"".join(struct.pack("=I", len(text)) + text for text in texts))

    def read(self, size):
        deadline, data = time.monotonic() + DEADLINE, b""
        while len(data) < size:
            wait_for(self.process.stdout, select.POLLIN, deadline)
            piece = self.process.stdout.read(size - len(data))
            if not piece:
                raise EOFError(data)
            data += piece
        return data

    def next(self):
        return json.loads(self.read(*struct.unpack("=I", self.read(4))))

    def end(self):
        """Its exit status, what it printed that was not read yet, what it said of errors, and the seconds of processor time."""
        self.process.stdin.close()
        rest = b"" if self.process.stdout.closed else self.process.stdout.read()
        errors = self.process.stderr.read().decode()
        _, status, usage = os.wait4(self.process.pid, 0)
        self.process.returncode = os.waitstatus_to_exitcode(status)
        return self.process.returncode, rest, errors, usage.ru_utime + usage.ru_stime


class Application:
    """The application's end: its socket, and what it says to one relay after the other."""

    def __init__(self, home):
        self.path = home / "Fendrel/bridge.sock"
        self.path.parent.mkdir(exist_ok=True)
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(str(self.path))
        self.listener.listen()
        self.listener.settimeout(DEADLINE)
        self.connection = self.lines = None

    def accept(self):
        self.hang_up()
        self.connection, _ = self.listener.accept()
        self.connection.settimeout(DEADLINE)
        self.lines = self.connection.makefile("rb")

    def hang_up(self):
        if self.connection:
            self.lines.close()
            self.connection.close()

    def end(self):
        self.hang_up()
        self.listener.close()
        self.path.unlink()

    def say(self, *messages):
        self.connection.sendall(b"".join(json.dumps(message).encode() + b"\n" for message in messages))

    def next(self):
        return json.loads(self.lines.readline())


def wait_for(file, event, deadline):
    waiter = select.poll()
    waiter.register(file, event)
    if not waiter.poll(max(0.0, deadline - time.monotonic()) * 1000):
        raise TimeoutError("nothing comes")


class RelayProcess(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)

    def start(self, **environment):
        relay = Relay(self.home, **environment)
        self.addCleanup(self.stop, relay.process)
        return relay

    def serve(self):
        application = Application(self.home)
        self.addCleanup(lambda: application.path.exists() and application.end())
        return application

    @staticmethod
    def stop(process):
        if process.returncode is None:
            process.kill()
            process.wait()
        for file in (process.stdin, process.stdout, process.stderr):
            with contextlib.suppress(BrokenPipeError):
                file.close()

    def start_connected(self):
        application, relay = self.serve(), self.start()
        application.accept()
        self.assertEqual(application.next(), {"type": "hello", "pids": [os.getpid()]})
        self.answer(application, relay)
        return application, relay

    def answer(self, application, relay):
        """Only then it is known to be there, and not to hang."""
        application.say(STATE)
        self.assertEqual([relay.next(), relay.next()], [CONNECTED, STATE])

    def test_passes_messages_and_nothing_else(self):
        application, relay = self.start_connected()
        output, errors = (os.stat(f"/proc/{relay.process.pid}/fd/{number}").st_ino for number in (1, 2))
        self.assertEqual(output, errors)  # a stray word cannot get between the messages
        relay.say(tab(1), ASK)
        relay.write(struct.pack("=I", 2_000_000) + bytes(2_000_000))
        relay.say(tab(2, "x" * 1_000_000))
        self.assertEqual([application.next() for _ in range(3)], [tab(1), ASK, tab(2, "x" * 1_000_000)])
        application.connection.sendall(b"GET / HTTP/1.1\r\n\n" + bytes(range(11, 256)) + b"\n[]\n{\n")
        application.say(STATE, {"type": "state", "more": "x" * 1_048_576}, {"type": "state", "more": "x" * 1_000_000})
        self.assertEqual(relay.next(), STATE)
        self.assertEqual(len(relay.next()["more"]), 1_000_000)
        application.connection.sendall(b"{" * 1_048_577)  # a line without end
        self.assertEqual(relay.next(), DISCONNECTED)
        application.accept()
        self.answer(application, relay)
        application.connection.shutdown(socket.SHUT_RD)  # deaf, and not gone
        relay.say(ASK)
        self.assertEqual(relay.next(), DISCONNECTED)
        self.assertEqual(relay.end()[:3], (0, b"", ""))

    def test_finds_an_application_that_was_away(self):
        relay = self.start()
        self.assertEqual(relay.next(), DISCONNECTED)
        relay.say(tab(1), ASK, tab(2))
        expected = tab(2)
        for number in range(3, 6):
            application, begun = self.serve(), time.monotonic()
            application.accept()
            self.assertLess(time.monotonic() - begun, NOTICED)
            self.assertEqual(application.next()["type"], "hello")
            self.assertEqual(application.next(), expected)
            self.answer(application, relay)
            expected = tab(number)
            relay.say(expected)
            self.assertEqual(application.next(), expected)
            application.end()
            self.assertEqual(relay.next(), DISCONNECTED)

    def test_does_not_spin(self):
        begun = time.monotonic()
        application, relay = self.start_connected()
        # The browser does not read while the application fills what lies between, and goes.
        application.connection.settimeout(0)
        with self.assertRaises(BlockingIOError):
            while True:
                application.connection.send(b'{"type":"state"}\n' * 1000)
        for _ in range(6):
            application.accept()  # and is gone again at once
        status, _, _, processor = relay.end()
        self.assertEqual(status, 0)
        self.assertLess(processor, (time.monotonic() - begun) / 4)

    def test_waits_for_a_browser_that_does_not_read(self):
        application, relay = self.start_connected()
        line, sent = json.dumps({"type": "state", "more": "x" * 8000}).encode() + b"\n", b""
        application.connection.setblocking(False)
        for _ in range(100):
            with contextlib.suppress(BlockingIOError):
                while True:
                    begun = len(sent) % len(line)
                    count = application.connection.send(line[begun:])
                    sent += line[begun:begun + count]
            # The other direction goes on, and with the answer the relay has had its chance to read.
            relay.say(ASK)
            wait_for(application.connection, select.POLLIN, time.monotonic() + DEADLINE)
            application.connection.recv(1000)
        self.assertLess(len(sent), 2_000_000)
        for _ in range(len(sent) // len(line)):
            self.assertEqual(len(relay.next()["more"]), 8000)

    def test_tells_a_busy_application_the_last_tab(self):
        application, relay = self.start_connected()
        for number in range(100):
            relay.say(*(tab(number * 1000 + each) for each in range(1000)))  # never blocks, though nobody takes them
        relay.say(ASK)
        last = None
        while (message := application.next()) != ASK:
            last = message
        self.assertEqual(last, tab(99_999))

    def test_leaves_with_its_browser(self):
        def close_output(relay):
            relay.process.stdout.close()
            wait_for(relay.process.stderr, select.POLLIN, time.monotonic() + DEADLINE)  # it has ended by itself
        for case, act, expected in (
                ("between messages", lambda relay: relay.say(tab(1)), (0, "")),
                ("within a length", lambda relay: relay.write(b"\1\0"), (1, "in the middle of a message")),
                ("within a message", lambda relay: relay.write(b"\9\0\0\0{"), (1, "in the middle of a message")),
                ("within what is too long", lambda relay: relay.write(b"\xff" * 9), (1, "in the middle of a message")),
                ("output closed first", close_output, (0, ""))):
            for is_there in (False, True):
                with self.subTest(case, application=is_there):
                    if is_there:
                        application, relay = self.start_connected()
                    else:
                        relay = self.start()
                        self.assertEqual(relay.next(), DISCONNECTED)
                    act(relay)
                    status, rest, errors, _ = relay.end()
                    self.assertEqual((status, rest), (expected[0], b""))
                    self.assertIn(expected[1], errors)
                    if is_there:
                        application.end()

    def test_stays_where_no_socket_can_be(self):
        room = 108 - 1 - len("/Fendrel/bridge.sock")  # of a socket's address
        for environment, complaints in (({"XDG_DATA_HOME": "/".ljust(room, "x")}, 0),
                                        ({"XDG_DATA_HOME": "/".ljust(room + 1, "x")}, 1),
                                        ({"XDG_DATA_HOME": "here", "HOME": ""}, 1)):
            relay = self.start(**environment)
            self.assertEqual(relay.next(), DISCONNECTED)
            relay.say(tab(1))
            status, rest, errors, _ = relay.end()
            self.assertEqual((status, rest), (0, b""))
            self.assertEqual(errors.count("no socket can be at"), complaints)

    def test_finds_the_socket_in_the_home_folder(self):
        (self.home / ".local/share").mkdir(parents=True)
        application = Application(self.home / ".local/share")
        self.addCleanup(application.end)
        self.start(XDG_DATA_HOME="", HOME=str(self.home))
        application.accept()


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], "-v"])
