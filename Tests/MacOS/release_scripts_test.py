"""The release scripts of tools/macos over stand-ins for Apple's tools, which record how they were called."""

import hashlib
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
SPARKLE = "Contents/Frameworks/Sparkle.framework"
RECORD = 'printf "%s\\n" "$(basename "$0") $*" >> "$RECORD"\n'

STAND_INS = {
    "codesign": 'case "$*" in *--verify*) exit "${UNSIGNED:-0}" ;; esac\n',
    # A ticket may take its time: the first $LATE attempts to staple fail.
    "xcrun": 'case "$*" in *"notarytool submit"*) echo "{\\"id\\":\\"7-e\\",\\"status\\":\\"${STATUS:-Accepted}\\"}" ;;\n'
             '*"notarytool log"*) echo "the signature of libzip is invalid" ;;\n'
             '"stapler "*) [ "$(grep -c "^xcrun stapler" "$RECORD")" -gt "${LATE:-0}" ] ;; esac\n',
    "dsymutil": 'mkdir -p "${@: -1}"\n',
    "sleep": "",
    "curl": 'case "$*" in *--output*) while [ "$1" != --output ]; do shift; done; cp "$ARCHIVE" "$2" ;;\n'
            '*) [ -n "${FEED:-}" ] && printf "%s\\n" "$FEED" ;; esac\n',
    "shasum": 'sha256sum --check --quiet\n',
    "ditto": 'if [ "$1" = -c ]; then touch "${@: -1}"; else cp -R "$1" "$2"; fi\n',
    "hdiutil": 'touch "${@: -1}"\n',
    "spctl": "",
    # Without arguments it fails and tells its options.
    "macdeployqt": 'if [ $# -eq 0 ]; then echo "  -codesign=<ident> ${KNOWS}"; exit 1; fi\n',
    # Each file names a system library, itself, and what the test says.
    "otool": 'case $1 in -D) printf "%s:\\n/self/%s\\n" "$2" "${2##*/}" ;;\n'
             '-l) printf "      cmd LC_BUILD_VERSION\\n  platform 1\\n    minos %s\\n" "${MINOS:-13.0}" ;;\n'
             '-L) printf "%s:\\n" "$2"; for needed in /usr/lib/libSystem.B.dylib @rpath/QtCore "/self/${2##*/}" $NEEDED; do\n'
             'printf "\\t%s (compatibility version 1.0.0, current version 1.0.0)\\n" "$needed"; done ;; esac\n',
    "sips": 'touch "${@: -1}"\n',
    "iconutil": 'ls "${@: -1}" > "$4"\n',
    "plutil": 'grep -q "<key>$2<.key>" "${@: -1}" || { echo "Could not extract value"; exit 1; }\n'
              'sed -n "/<key>$2<.key>/{n;s/.*<string>\\(.*\\)<.string>.*/\\1/p;}" "${@: -1}"\n',
}
SIGN_UPDATE = "echo 'sparkle:edSignature=\"c2lnbmF0dXJl\" length=\"1234\"'\n"


class ReleaseScriptsTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        # A tree of its own, so that nothing of a real build is touched.
        for part in ("tools/macos", "Resources"):
            shutil.copytree(ROOT / part, self.folder / part)
        shutil.copy(ROOT / "tools/appcast-entry", self.folder / "tools")
        self.record = self.folder / "record"
        self.record.touch()
        for name, body in STAND_INS.items():
            self.write_program(f"bin/{name}", RECORD + body)
        self.app = self.folder / "build/Orvello.app"
        self.environment = {
            "PATH": f"{self.folder}/bin:/usr/bin:/bin",
            "HOME": str(self.folder),
            "TMPDIR": str(self.folder),
            "RECORD": str(self.record),
        }

    def write_program(self, name, body):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("#!/bin/bash\n" + body)
        path.chmod(0o755)

    def make_app(self, with_sparkle=True, update_keys="SUFeedURL SUPublicEDKey"):
        names = ["MacOS/Orvello", "PlugIns/platforms/libqcocoa.dylib",
                 "Frameworks/QtCore.framework/Versions/A/QtCore", "Frameworks/libzip.5.dylib"]
        if with_sparkle:
            base = "Frameworks/Sparkle.framework/Versions/B"
            names += [f"{base}/Sparkle", f"{base}/Autoupdate", f"{base}/Updater.app/Contents/Info.plist",
                      f"{base}/XPCServices/Installer.xpc/Contents/Info.plist",
                      f"{base}/XPCServices/Downloader.xpc/Contents/Info.plist"]
        for name in names:
            path = self.app / "Contents" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.touch()
        # macdeployqt moves the plugins of QML modules to PlugIns and leaves links behind.
        link = self.app / "Contents/Resources/qml/QtQuick/libqcocoa.dylib"
        link.parent.mkdir(parents=True)
        link.symlink_to("../../../PlugIns/platforms/libqcocoa.dylib")
        plist = (ROOT / "Resources/macOS/Info.plist.in").read_text()
        for key, value in {"PROJECT_VERSION": "2.1", "ORVELLO_BUILD_NUMBER": "57",
                           "CMAKE_OSX_DEPLOYMENT_TARGET": "13.0", "ORVELLO_UPDATE_KEYS":
                           "".join(f"<key>{key}</key>\n<string>https://example.org/{key}</string>\n"
                                   for key in update_keys.split())}.items():
            plist = plist.replace(f"@{key}@", value)
        (self.app / "Contents/Info.plist").write_text(plist)

    def run_script(self, name, *arguments, **environment):
        return subprocess.run([self.folder / "tools/macos" / name, *map(str, arguments)], capture_output=True,
                              text=True, env=self.environment | environment, cwd=self.folder)

    def calls(self, tool):
        return [line for line in self.record.read_text().splitlines() if line.split()[0] == tool]

    def signed(self):
        """The signed paths inside the application, in order."""
        paths = [call.split()[-1] for call in self.calls("codesign") if "--sign" in call]
        return [path.removeprefix("build/Orvello.app").lstrip("/") for path in paths]

    # sign

    def test_signs_from_the_inside_out(self):
        self.make_app()

        result = self.run_script("sign", ORVELLO_SIGNING_IDENTITY="Developer_ID")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.signed(), [
            "Contents/Frameworks/libzip.5.dylib",
            "Contents/PlugIns/platforms/libqcocoa.dylib",
            f"{SPARKLE}/Versions/B/XPCServices/Downloader.xpc",
            f"{SPARKLE}/Versions/B/XPCServices/Installer.xpc",
            f"{SPARKLE}/Versions/B/Autoupdate",
            f"{SPARKLE}/Versions/B/Updater.app",
            "Contents/Frameworks/QtCore.framework",
            SPARKLE,
            "",
        ])

    def test_gives_the_entitlements_to_the_application_alone(self):
        self.make_app()

        self.run_script("sign", ORVELLO_SIGNING_IDENTITY="Developer_ID")

        with_entitlements = [call for call in self.calls("codesign") if "--entitlements" in call]
        self.assertEqual(len(with_entitlements), 1)
        self.assertTrue(with_entitlements[0].endswith("Resources/macOS/Orvello.entitlements build/Orvello.app"))

    def test_signs_with_the_hardened_runtime_and_a_timestamp_and_never_deep(self):
        self.make_app()

        self.run_script("sign", ORVELLO_SIGNING_IDENTITY="Developer_ID")

        for call in self.calls("codesign")[:-1]:
            self.assertIn("--options runtime --timestamp", call)
            self.assertNotIn("--deep", call)
        self.assertIn("--verify --deep --strict", self.calls("codesign")[-1])

    def test_an_ad_hoc_signature_has_no_timestamp_and_lets_other_frameworks_in(self):
        self.make_app(with_sparkle=False)

        result = self.run_script("sign", ORVELLO_SIGNING_IDENTITY="-")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertNotIn("--timestamp", self.record.read_text())
        self.assertIn("Orvello-adhoc.entitlements", self.record.read_text())

    def test_signing_says_that_it_needs_an_identity(self):
        self.make_app()

        result = self.run_script("sign")

        self.assertEqual(result.returncode, 1)
        self.assertIn("ORVELLO_SIGNING_IDENTITY is needed", result.stderr)
        self.assertEqual(self.calls("codesign"), [])

    def test_signing_says_that_there_is_no_application(self):
        result = self.run_script("sign", ORVELLO_SIGNING_IDENTITY="-")

        self.assertEqual(result.returncode, 1)
        self.assertIn("there is no application at build/Orvello.app", result.stderr)

    # bundle

    def test_bundling_copies_sparkle_and_deploys_qt(self):
        self.make_app(with_sparkle=False)
        (self.folder / "third_party/Sparkle/Sparkle.framework").mkdir(parents=True)

        result = self.run_script("bundle", KNOWS="-no-codesign")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue((self.app / SPARKLE).is_dir())
        self.assertEqual(self.calls("macdeployqt")[1:], [
            "macdeployqt build/Orvello.app -qmldir=Sources/Orvello -always-overwrite -no-codesign"])

    def test_bundling_asks_no_macdeployqt_for_what_it_does_not_know(self):
        self.make_app()

        result = self.run_script("bundle")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.calls("macdeployqt")[1:], [
            "macdeployqt build/Orvello.app -qmldir=Sources/Orvello -always-overwrite"])

    def test_bundling_lets_only_homebrews_qt_find_homebrews_libraries(self):
        self.make_app()
        self.write_program("bin/brew", "echo /opt/homebrew\n")

        self.run_script("bundle")
        self.run_script("bundle", QT_ROOT="/opt/Qt")

        self.assertEqual(self.calls("macdeployqt")[1::2], [
            "macdeployqt build/Orvello.app -qmldir=Sources/Orvello -always-overwrite -libpath=/opt/homebrew/lib",
            "macdeployqt build/Orvello.app -qmldir=Sources/Orvello -always-overwrite"])

    def test_bundling_fails_if_a_library_was_left_out(self):
        self.make_app()

        result = self.run_script("bundle", NEEDED="/opt/homebrew/opt/libzip/lib/libzip.5.dylib")

        self.assertEqual(result.returncode, 1)
        self.assertIn("not everything is in the bundle", result.stderr)
        self.assertIn("libqcocoa.dylib needs /opt/homebrew/opt/libzip/lib/libzip.5.dylib", result.stderr)
        self.assertIn("Orvello needs /opt/homebrew", result.stderr)

    def test_bundling_without_sparkle_says_so_and_goes_on(self):
        self.make_app(with_sparkle=False)

        result = self.run_script("bundle")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("no Sparkle", result.stderr)

    def test_bundling_says_that_it_needs_macdeployqt(self):
        self.make_app()
        (self.folder / "bin/macdeployqt").unlink()

        result = self.run_script("bundle")

        self.assertEqual(result.returncode, 1)
        self.assertIn("macdeployqt is needed", result.stderr)

    # notarise

    def test_an_application_is_submitted_as_an_archive_and_stapled_itself(self):
        self.make_app()

        result = self.run_script("notarise", self.app, ORVELLO_NOTARY_PROFILE="profile")

        self.assertEqual(result.returncode, 0, result.stderr)
        submit, staple = self.calls("xcrun")
        self.assertRegex(submit, r"^xcrun notarytool submit .*/Orvello\.app\.zip --keychain-profile profile --wait --output-format json$")
        self.assertEqual(staple, f"xcrun stapler staple {self.app}")

    def test_notarising_fails_when_the_service_accepts_no_such_thing_and_shows_its_log(self):
        self.make_app()

        # The command itself succeeds.
        result = self.run_script("notarise", self.app, ORVELLO_NOTARY_PROFILE="profile", STATUS="Invalid")

        self.assertEqual(result.returncode, 1)
        self.assertIn("the signature of libzip is invalid", result.stderr)
        self.assertIn("is not accepted: Invalid", result.stderr)
        self.assertEqual(self.calls("xcrun")[1:], ["xcrun notarytool log 7-e --keychain-profile profile"])

    def test_a_ticket_that_is_late_is_asked_for_again(self):
        self.make_app()

        result = self.run_script("notarise", self.app, ORVELLO_NOTARY_PROFILE="profile", LATE="2")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(len(self.calls("xcrun")), 1 + 3)

    def test_notarising_fails_when_there_is_no_ticket(self):
        self.make_app()

        result = self.run_script("notarise", self.app, ORVELLO_NOTARY_PROFILE="profile", LATE="1000")

        self.assertEqual(result.returncode, 1)
        self.assertIn("there is no ticket", result.stderr)

    def test_notarising_says_that_it_needs_a_profile(self):
        self.make_app()

        result = self.run_script("notarise", self.app)

        self.assertEqual(result.returncode, 1)
        self.assertIn("ORVELLO_NOTARY_PROFILE is needed", result.stderr)
        self.assertEqual(self.calls("xcrun"), [])

    # make-dmg, appcast-item, make-icons, release

    def test_an_unsigned_application_is_not_packed(self):
        self.make_app()

        result = self.run_script("make-dmg", UNSIGNED="1")

        self.assertEqual(result.returncode, 1)
        self.assertIn("is not signed", result.stderr)
        self.assertEqual(self.calls("hdiutil"), [])

    def test_the_image_is_signed_with_a_certificate(self):
        self.make_app()

        result = self.run_script("make-dmg", ORVELLO_SIGNING_IDENTITY="Developer_ID")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.calls("codesign")[-1],
                         "codesign --force --sign Developer_ID --timestamp build/Orvello.dmg")

    def test_the_feed_entry_tells_what_the_updater_asks(self):
        self.make_app()
        (self.folder / "build/Orvello.dmg").touch()
        self.write_program("third_party/Sparkle/bin/sign_update", SIGN_UPDATE)

        result = self.run_script("appcast-item", "build/Orvello.dmg", "https://example.org/Orvello.dmg")

        self.assertEqual(result.returncode, 0, result.stderr)
        namespace = "http://www.andymatuschak.org/xml-namespaces/sparkle"
        item = xml.etree.ElementTree.fromstring(f'<rss xmlns:sparkle="{namespace}">{result.stdout}</rss>')[0]
        self.assertEqual(item.findtext("title"), "Orvello 2.1")
        self.assertEqual(item.findtext(f"{{{namespace}}}version"), "57")
        self.assertEqual(item.findtext(f"{{{namespace}}}shortVersionString"), "2.1")
        self.assertEqual(item.findtext(f"{{{namespace}}}minimumSystemVersion"), "13.0.0")
        enclosure = item.find("enclosure")
        self.assertEqual(enclosure.get("url"), "https://example.org/Orvello.dmg")
        self.assertEqual(enclosure.get("length"), "1234")
        self.assertEqual(enclosure.get(f"{{{namespace}}}edSignature"), "c2lnbmF0dXJl")

    def test_the_feed_entry_is_well_formed_whatever_the_addresses_are(self):
        self.make_app()
        (self.folder / "build/Orvello.dmg").touch()
        self.write_program("third_party/Sparkle/bin/sign_update", SIGN_UPDATE)
        image, notes = "https://example.org/get?file=Orvello&arch=arm64", "https://example.org/notes?a=<1>&b=\"2\""

        result = self.run_script("appcast-item", "build/Orvello.dmg", image, notes)

        namespace = "http://www.andymatuschak.org/xml-namespaces/sparkle"
        item = xml.etree.ElementTree.fromstring(f'<rss xmlns:sparkle="{namespace}">{result.stdout}</rss>')[0]
        self.assertEqual(item.find("enclosure").get("url"), image)
        self.assertEqual(item.findtext(f"{{{namespace}}}releaseNotesLink"), notes)

    def test_the_feed_entry_needs_an_https_address_and_the_signer(self):
        self.make_app()
        (self.folder / "build/Orvello.dmg").touch()

        without_signer = self.run_script("appcast-item", "build/Orvello.dmg", "https://example.org/Orvello.dmg")
        self.write_program("third_party/Sparkle/bin/sign_update", SIGN_UPDATE)
        with_http = self.run_script("appcast-item", "build/Orvello.dmg", "http://example.org/Orvello.dmg")

        self.assertIn("sign_update is needed", without_signer.stderr)
        self.assertIn("must be https", with_http.stderr)
        self.assertEqual([without_signer.returncode, with_http.returncode], [1, 1])

    def test_the_icon_set_has_every_size(self):
        result = self.run_script("make-icons", "Resources/AppIcon-1024.png", self.folder / "icons")

        self.assertEqual(result.returncode, 0, result.stderr)
        expected = [f"icon_{size}x{size}{scale}.png" for size in (16, 32, 128, 256, 512) for scale in ("", "@2x")]
        self.assertEqual(sorted((self.folder / "icons").read_text().split()), sorted(expected))
        self.assertIn("sips -z 1024 1024", self.record.read_text())

    def test_a_release_asks_for_what_it_needs_before_it_starts(self):
        self.make_app()

        result = self.run_script("release", ORVELLO_SIGNING_IDENTITY="Developer_ID")

        self.assertNotEqual(result.returncode, 0)
        self.assertIn("ORVELLO_NOTARY_PROFILE", result.stderr)
        self.assertEqual(self.record.read_text(), "")

    def release(self, **environment):
        feed = "<sparkle:version>9</sparkle:version> <enclosure sparkle:version=\"56\"/>"
        return self.run_script("release", **{"ORVELLO_SIGNING_IDENTITY": "Developer_ID", "ORVELLO_NOTARY_PROFILE": "profile",
                                             "FEED": feed} | environment)

    def test_a_release_deploys_signs_notarises_and_packs_in_order(self):
        self.make_app()

        result = self.release()

        self.assertEqual(result.returncode, 0, result.stderr)
        steps = []
        for line in self.record.read_text().splitlines():
            tool, *words = line.split()
            step = {"codesign": "sign" if "--sign" in words else "verify", "xcrun": " ".join([tool, *words[:1]])}.get(tool, tool)
            if step in ("curl", "dsymutil", "macdeployqt", "sign", "verify", "xcrun notarytool", "xcrun stapler", "hdiutil",
                        "spctl") and steps[-1:] != [step]:
                steps.append(step)
        notarised = ["xcrun notarytool", "xcrun stapler"]
        self.assertEqual(steps, ["curl", "dsymutil", "macdeployqt", "sign", "verify", *notarised, "verify", "hdiutil", "sign",
                                 *notarised, "spctl"])

    def test_a_release_keeps_the_symbols_that_its_crash_reports_need(self):
        self.make_app()

        result = self.release()

        self.assertEqual(self.calls("dsymutil"),
                         ["dsymutil build/Orvello.app/Contents/MacOS/Orvello -o build/Orvello-2.1-57.dSYM"], result.stderr)
        self.assertTrue((self.folder / "build/Orvello-2.1-57.dSYM.zip").exists())

    def refused(self, **environment):
        """What a release complains of before it does anything."""
        result = self.release(**environment)
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertEqual(self.calls("codesign") + self.calls("macdeployqt"), [])
        return result.stderr

    def test_a_release_without_a_feed_is_refused(self):
        self.make_app(update_keys="SUPublicEDKey")
        self.assertIn("no SUFeedURL", self.refused())

    def test_a_release_without_a_public_key_is_refused(self):
        self.make_app(update_keys="SUFeedURL")
        self.assertIn("no SUPublicEDKey", self.refused())

    def test_a_release_whose_build_number_the_feed_has_already_is_refused(self):
        self.make_app()
        for number in ("57", "58"):
            self.assertIn(f"build {number}", self.refused(FEED=f'<enclosure sparkle:version="{number}"/>'))

    def test_a_release_without_an_earlier_one_says_so(self):
        self.make_app()
        self.assertIn("ORVELLO_FIRST_RELEASE=1", self.refused(FEED=""))
        result = self.release(FEED="", ORVELLO_FIRST_RELEASE="1")
        self.assertEqual(result.returncode, 0, result.stderr)

    def test_a_release_with_libraries_newer_than_the_oldest_system_is_refused(self):
        self.make_app()

        result = self.release(MINOS="14.0")

        self.assertEqual(result.returncode, 1)
        self.assertIn("libqcocoa.dylib needs macOS 14.0", result.stderr)
        self.assertEqual(self.calls("codesign"), [])

    # fetch-sparkle

    def sparkle_archive(self, name="Sparkle.framework"):
        folder = self.folder / "archive"
        (folder / name).mkdir(parents=True)
        archive = self.folder / "archive.tar.xz"
        subprocess.run(["tar", "-cJf", archive, "-C", folder, name], check=True)
        return str(archive)

    def test_an_archive_of_sparkle_with_another_checksum_is_refused(self):
        result = self.run_script("fetch-sparkle", ARCHIVE=self.sparkle_archive())

        self.assertEqual(result.returncode, 1)
        self.assertIn("is not the one that was checked", result.stderr)
        self.assertFalse((self.folder / "third_party/Sparkle").exists())

    def test_sparkle_is_unpacked_with_the_checksum_that_is_wanted(self):
        archive = self.sparkle_archive()
        checksum = hashlib.sha256(pathlib.Path(archive).read_bytes()).hexdigest()

        result = self.run_script("fetch-sparkle", ARCHIVE=archive, SPARKLE_SHA256=checksum)

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue((self.folder / "third_party/Sparkle/Sparkle.framework").is_dir())


class PapersTest(unittest.TestCase):
    def test_the_property_lists_are_well_formed_and_complete(self):
        import plistlib

        text = (ROOT / "Resources/macOS/Info.plist.in").read_text().replace("@ORVELLO_UPDATE_KEYS@", "")
        info = plistlib.loads(text.encode())
        self.assertEqual(len(info["CFBundleLocalizations"]),
                         1 + len(list((ROOT / "Resources/Translations").glob("orvello_*.ts"))))
        self.assertIs(info["LSUIElement"], True)
        self.assertEqual(info["CFBundleIdentifier"], "app.orvello.mac")
        self.assertEqual(info["NSPrincipalClass"], "OrvelloApplication")
        for key in ("NSMicrophoneUsageDescription", "NSAppleEventsUsageDescription", "LSMinimumSystemVersion",
                    "CFBundleShortVersionString", "CFBundleVersion", "CFBundleURLTypes", "CFBundleIconFile"):
            self.assertTrue(info[key], key)

    def test_the_update_keys_are_well_formed_whatever_the_address_is(self):
        import plistlib

        feed = "https://example.org/feed?channel=stable&arch=arm64"
        with tempfile.TemporaryDirectory() as folder:
            script = pathlib.Path(folder) / "configure.cmake"
            script.write_text(f"""
                set(PROJECT_SOURCE_DIR {ROOT})
                include({ROOT}/cmake/OrvelloMacBundle.cmake)
                orvello_update_keys(ORVELLO_UPDATE_KEYS)
                configure_file({ROOT}/Resources/macOS/Info.plist.in {folder}/Info.plist @ONLY)
                """)
            subprocess.run(["cmake", f"-DORVELLO_FEED_URL={feed}", "-DORVELLO_UPDATE_PUBLIC_KEY=a2V5+/=", "-P", script],
                           check=True, capture_output=True)
            info = plistlib.loads((pathlib.Path(folder) / "Info.plist").read_bytes())
        self.assertEqual(info["SUFeedURL"], feed)
        self.assertEqual(info["SUPublicEDKey"], "a2V5+/=")

    def test_the_entitlements_have_no_comment(self):
        for name in ("Orvello", "Orvello-adhoc"):
            # What codesign puts into the signature is read by a parser that knows no comments.
            self.assertNotIn("<!--", (ROOT / f"Resources/macOS/{name}.entitlements").read_text())

    def test_only_builds_without_a_certificate_let_other_libraries_in(self):
        import plistlib

        rights = plistlib.loads((ROOT / "Resources/macOS/Orvello.entitlements").read_bytes())
        self.assertEqual(rights, {"com.apple.security.device.audio-input": True,
                                  "com.apple.security.automation.apple-events": True})
        adhoc = plistlib.loads((ROOT / "Resources/macOS/Orvello-adhoc.entitlements").read_bytes())
        self.assertEqual(adhoc, rights | {"com.apple.security.cs.disable-library-validation": True})


if __name__ == "__main__":
    unittest.main()
