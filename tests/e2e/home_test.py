"""The home screen of a rebranded copy: its footer, and the page that greets a new version."""
import hashlib
import os
from urllib.parse import parse_qs

from accessible import wait_for
from harness import ProgramTest, main
from material import bundle_information, copy_bundle


class HomeTest(ProgramTest):

    def test_greeting_and_footer_of_a_rebranded_copy(self):
        bundle = copy_bundle(self.bundle, self.desktop.home + '/Copy.app', CFBundleIdentifier='org.example.copy',
                             CFBundleShortVersionString='9.8.7', TWReadableHomeLink='www.copy.example')
        app = self.launch(bundle=bundle)
        self.assertIn('Tarnwell Software, Inc. www.copy.example', app.texts())
        address = wait_for(lambda: self.desktop.calls('xdg-open'), 'the greeting page')[0][0]
        endpoint, query = address.split('?', 1)
        self.assertEqual(endpoint, bundle_information(bundle)['TWRedirectLink'])
        signed, digest = query.split('&h=')
        self.assertEqual(digest, hashlib.md5(signed.encode()).hexdigest().upper())
        values = parse_qs(signed, keep_blank_values=True)
        self.assertEqual([values[key][0] for key in ('cvs', 'pvs', 'ev', 'fui', 'lang', 'jump')],
                         ['9.8.7', '', 'ins', 'ins', 'en', bundle_information(bundle)['TWLaunchLink']])
        self.assertEqual(app.end(), 0)
        self.assertFalse(os.path.exists(self.desktop.defaults_path(self.bundle)), 'not its own defaults')

        self.assertEqual(self.launch(bundle=bundle).end(), 0)
        self.assertEqual(len(self.desktop.calls('xdg-open')), 1, 'a version is greeted once')


if __name__ == '__main__':
    main()
