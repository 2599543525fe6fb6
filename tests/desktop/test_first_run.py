"""The first run, led by the keyboard alone: left, taken up again, and repeated."""

import harness
from windows import EAR, numbers, press, titled, wait_active

WELCOME = "Welcome to Fendrel"


class FirstRun(harness.DesktopTest):
    def test_is_left_and_taken_up_again(self):
        fendrel = self.start()
        wait_active(WELCOME)
        press("Return", "Return", "Escape")
        self.is_gone()
        self.assertFalse(fendrel.do("status")["onboarding"]["done"])
        fendrel.end(lambda: fendrel.do("quit"))

        fendrel = self.start()  # at the third page of four
        wait_active(WELCOME)
        press("Return", "Return")
        fendrel.expect("the end of the first run", lambda state: state["onboarding"]["done"])
        self.is_gone()
        modes = fendrel.do("modes")

        fendrel.do("onboarding", "show")
        wait_active(WELCOME)
        press("Return", "Return", "Return", "Return")
        self.is_gone()
        self.assertEqual(fendrel.do("modes"), modes)

    def is_gone(self):
        EAR.expect(f"no window {WELCOME!r}", lambda: not titled(numbers("_NET_CLIENT_LIST"), WELCOME))


if __name__ == "__main__":
    harness.main()
