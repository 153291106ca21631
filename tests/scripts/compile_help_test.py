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

    def compile(self, *options, system="linux"):
        output = self.folder / "out.hlp"
        command = [sys.executable, COMPILER, f"--system={system}", *options, output, self.folder, self.folder]
        result = subprocess.run(command, capture_output=True, text=True)
        return result.returncode, result.stderr, output.read_bytes() if output.exists() else None

    def body(self, system):
        """The one topic's text as the system's help has it."""
        code, message, output = self.compile(system=system)
        self.assertEqual((code, message), (0, ""))
        return output.decode("utf-8").split("Home\n")[1].rsplit("\ncontents", 1)[0]

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

    def test_a_paragraph_of_one_system_is_missing_from_the_other_with_its_line(self):
        self.write("home.html", '<topic title="Home"><p>A</p>\n<p system="windows">B <b>C</b></p>\n<p>D</p></topic>')
        self.assertEqual(self.body("linux"), "<p>A</p>\n<p>D</p>")
        self.assertEqual(self.body("windows"), "<p>A</p>\n<p>B <b>C</b></p>\n<p>D</p>")

    def test_words_of_one_system_leave_the_text_around_them_whole(self):
        self.write(
            "home.html",
            '<topic title="Home"><p>It is <span system="linux">here, <b>really</b>,</span><span system="windows">there'
            "</span> <i>now</i>.</p></topic>",
        )
        self.assertEqual(self.body("linux"), "<p>It is here, <b>really</b>, <i>now</i>.</p>")
        self.assertEqual(self.body("windows"), "<p>It is there <i>now</i>.</p>")

    def test_list_items_and_rows_can_be_of_one_system(self):
        self.write(
            "home.html",
            '<topic title="Home"><ul><li system="linux">A</li><li>B</li></ul>'
            '<table><tr system="windows"><td>C</td></tr><tr><td>D</td></tr></table></topic>',
        )
        self.assertEqual(self.body("linux"), "<ul><li>A</li><li>B</li></ul><table><tr><td>D</td></tr></table>")
        windows = "<ul><li>B</li></ul><table><tr><td>C</td></tr><tr><td>D</td></tr></table>"
        self.assertEqual(self.body("windows"), windows)

    def test_words_of_one_system_can_stand_within_such_words(self):
        self.write(
            "home.html",
            '<topic title="Home"><p>A<span> B<span system="windows"> C</span> D</span></p></topic>',
        )
        self.assertEqual(self.body("linux"), "<p>A B D</p>")
        self.assertEqual(self.body("windows"), "<p>A B C D</p>")

    def test_a_picture_of_the_other_system_is_not_packed(self):
        self.write("dot.svg", "<svg/>")
        self.write(
            "home.html", '<topic title="Home"><img system="windows" src="dot.svg" width="3" height="4"/></topic>'
        )
        self.assertNotIn(b"svg", self.compile()[2])
        self.assertIn(b"picture 6 dot.svg\n", self.compile(system="windows")[2])

    def test_what_is_left_out_is_checked_too(self):
        self.write("home.html", '<topic title="Home"><p system="windows"><a href="away">Away</a></p></topic>')
        self.assert_refused("link to a topic that does not exist: away")

    def test_an_unknown_system_is_refused(self):
        self.write("home.html", '<topic title="Home"><p system="amiga">Text</p></topic>')
        self.assert_refused("no such system: amiga")

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
