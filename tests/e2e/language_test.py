"""The interface language: as stored, and as chosen in the Help menu."""
from accessible import wait_for
from harness import ProgramTest, main
from material import catalogue

CHOICE = 'kAppCustomizeLanguage'


class LanguageTest(ProgramTest):
    def choose_german(self, app, answer):
        for item in ('Help', 'Language', 'Deutsch'):
            self.click(app, None, item)
        self.answer(app, answer)

    def test_choice_with_restart(self):
        app = self.launch()
        self.choose_german(app, 'Cancel')
        wait_for(lambda: self.defaults().get(CHOICE) == 'de', 'the choice to be stored')
        self.assertIn('Video Converter', app.texts())
        self.choose_german(app, 'OK')
        self.assertEqual(app.wait_for_end(), 0)
        again = self.desktop.wait_for_relaunch(self.bundle, [app])
        again.wait_for_window()
        wait_for(lambda: self.defaults()['AppleLanguages'] == ['de'], 'German to be settled')
        again.find('label', catalogue('de')['Video Converter'])
        again.find('push button', catalogue('de')['Close'])
        self.assertEqual(again.end(), 0)
        self.assertIs(self.defaults()['KestrelNotSafeTerminate'], False)


if __name__ == '__main__':
    main()
