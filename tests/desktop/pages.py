"""The pages that browsers visit in tests. Each fills its window with a colour that nothing else has, plays a video, and
counts what reaches it."""

from demo_parts.site import Site

COLOUR = (255, 0, 255)
SOCIAL, OTHER, WORK = "social.example", "chat.example", "work.example"
HOSTS = (SOCIAL, f"www.{SOCIAL}", OTHER, WORK)

PAGE = f"""<!doctype html><html lang="en">%s<title>A page</title>
<main><input><video muted loop></video></main>
<script>
  var clicks = 0, main = document.querySelector("main"), video = document.querySelector("video");
  Object.assign(main.style, {{position: "fixed", inset: 0, backgroundColor: "rgb{COLOUR}"}});
  main.addEventListener("click", () => ++clicks);
  document.querySelector("input").focus();
  const canvas = document.createElement("canvas");
  canvas.getContext("2d").fillRect(0, 0, 9, 9);
  video.srcObject = canvas.captureStream();
  video.play();
  %s
</script></html>"""

STRICT = """<meta http-equiv="Content-Security-Policy" content="default-src 'none'; script-src 'unsafe-inline'">"""
# Suffers nothing in it that is not its own.
HOSTILE = """
  const own = new Set(document.querySelectorAll("*"));
  function clean() {
    for (const element of document.querySelectorAll("*")) {
      if (!own.has(element))
        element.remove();
      for (const name of element === main ? [] : element.getAttributeNames())
        element.removeAttribute(name);
    }
  }
  new MutationObserver(clean).observe(document, {childList: true, subtree: true, attributes: true});
"""
# What a page can make of itself.
REWRITE = """(document.open(), document.write("<main style='position: fixed; inset: 0'></main>"), document.close(),
  window.main = document.querySelector("main"), main.isWritten = true)"""

# Whether the page itself is what is under the pointer.
IS_OPEN = "main.contains(document.elementFromPoint(innerWidth / 2, innerHeight / 2))"
IS_COVERED = f"document.readyState !== 'loading' && !{IS_OPEN}"


def serve():
    return Site({"/": PAGE % ("", ""), "/strict": PAGE % (STRICT, ""), "/hostile": PAGE % ("", HOSTILE)})
