"""Broken help sources must stop the build. Run by ctest with the compiler's path as the only argument."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

COMPILER = sys.argv.pop()


class CompileHelpTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.write("contents.xml", '<contents><topic name="home"/></contents>')
        self.write("home.html", '<topic title="Home" contexts="1"><p>Text</p></topic>')

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")

    def compile(self, *options):
        output = self.folder / "out.hlp"
        result = subprocess.run(
            [sys.executable, COMPILER, *options, output, self.folder, self.folder], capture_output=True, text=True
        )
        return result.returncode, result.stderr, output.read_bytes() if output.exists() else None

    def assert_refused(self, why):
        code, message, output = self.compile()
        self.assertNotEqual(code, 0)
        self.assertIn(why, message)
        self.assertIsNone(output)

    def test_sound_sources_give_the_documented_file(self):
        code, message, output = self.compile()
        self.assertEqual((code, message), (0, ""))
        self.assertEqual(output, b"Dayvane help 1\ntopic 16 home 1\nHome\n<p>Text</p>\ncontents 4\nhome\nend\n")

    def test_a_picture_is_packed_once_and_named_with_its_size(self):
        self.write("dot.svg", "<svg/>")
        self.write(
            "home.html",
            '<topic title="Home"><p><img src="dot.svg" width="3" height="4" alt=""/>'
            '<img src="dot.svg" width="3" height="4" alt=""/></p></topic>',
        )
        output = self.compile()[2]
        self.assertEqual(output.count(b"picture 6 dot.svg\n<svg/>\n"), 1)
        self.assertEqual(output.count(b'src="dot.svg?3x4"'), 2)

    @unittest.skipUnless(shutil.which("rsvg-convert"), "nothing here draws SVG")
    def test_pictures_can_be_packed_as_bitmaps(self):
        self.write("dot.svg", '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 3 4"/>')
        self.write("home.html", '<topic title="Home"><img src="dot.svg" width="3" height="4" alt=""/></topic>')
        output = self.compile("--bitmaps")[2]
        self.assertRegex(output, rb"picture \d+ dot\.png\n\x89PNG\r\n")
        self.assertIn(b'src="dot.png?3x4"', output)
        self.assertNotIn(b".svg", output)

    def test_a_link_to_nowhere_is_refused(self):
        self.write("home.html", '<topic title="Home"><p><a href="away">Away</a></p></topic>')
        self.assert_refused("link to a topic that does not exist: away")

    def test_a_missing_picture_is_refused(self):
        self.write("home.html", '<topic title="Home"><img src="no.svg" width="1" height="1" alt=""/></topic>')
        self.assert_refused("no such picture: no.svg")

    def test_a_topic_outside_the_contents_is_refused(self):
        self.write("lost.html", '<topic title="Lost"><p>Text</p></topic>')
        self.assert_refused("['lost']")

    def test_a_context_given_twice_is_refused(self):
        self.write("contents.xml", '<contents><topic name="home"/><topic name="other"/></contents>')
        self.write("other.html", '<topic title="Other" contexts="1"><p>Text</p></topic>')
        self.assert_refused("given twice: [1, 1]")

    def test_markup_that_the_viewer_does_not_draw_is_refused(self):
        self.write("home.html", '<topic title="Home"><script>x</script></topic>')
        self.assert_refused("<script>")

    def test_a_picture_without_a_size_is_refused(self):
        self.write("dot.svg", "<svg/>")
        self.write("home.html", '<topic title="Home"><p><img src="dot.svg"/></p></topic>')
        self.assert_refused("without a size")

    def test_broken_xml_is_refused(self):
        self.write("home.html", '<topic title="Home"><p>Text</topic>')
        self.assert_refused("mismatched tag")


if __name__ == "__main__":
    unittest.main()
