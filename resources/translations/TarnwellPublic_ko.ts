<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1(스레드 %2개)</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%@ %@ is currently the latest version available.</source>
        <translation>현재 사용할 수 있는 최신 버전은 %@ %@입니다.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ 버전을 사용할 수 있습니다. 현재 버전은 %@입니다. 지금 업데이트하겠습니까?</translation>
    </message>
    <message>
        <source>128 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>160 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>192 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>23.976</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>25</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2560 × 1440</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>29.97</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>320 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>448 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4K (3840 × 2160)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>59.94</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>640 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>96 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A chapter for each joined file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>%@의 새로운 버전이 있습니다</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>%@에 관하여</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>Kestrel에 관하여</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>회사 소개: Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>파일 추가…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>주소 예: http://proxy.example.com 또는 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>앱 로그</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>프로파일을 재설정하겠습니까?</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>지금 응용 프로그램을 재시동하겠습니까?</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>6가지 모드로 DVD를 백업하고, DVD 전체를 180가지 이상의 포맷으로 변환하여 Mac과 모바일 기기에서 재생하거나 하드 디스크에 저장하고 TV에서 즐길 수 있습니다. DVD 한 장을 5분 만에 변환합니다!</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>빌드 날짜: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>비디오 및 오디오 포맷을 바꾸고 파일 크기를 조절하며, 4K, 5K, 8K 비디오를 자르기, 병합, 분할, 회전하고 자막이나 워터마크를 추가할 수 있습니다. 가장 빠른 하드웨어 가속 처리를 경험해 보십시오.</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>변경한 언어는 다시 시작하면 적용됩니다.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>업데이트 확인 중… </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>다른 폴더를 선택하거나 쓰기 권한을 허용하세요: %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>선택…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>모두 제거</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Close the tip</source>
        <translation>팁 닫기</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>변환</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>DVD 변환 및 백업</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>비디오 변환 및 처리</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>복사했습니다.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사하기</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. 모든 권리 보유.</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>코어</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>오려두기</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the last key picture before %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD (720 × 576)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVD 리퍼</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부사항</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>세부사항…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>지금 다운로드</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>비디오 다운로드</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>다운로드 형식</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>다운로드 해상도</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>YouTube, Facebook 등 1000개 이상의 사이트에서 초고화질 스트리밍 비디오와 음악을 다운로드할 수 있습니다. 다운로드한 파일은 MP4, MP3 등으로 변환합니다.</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>다운로더</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>동시 다운로드 수</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>비디오나 폴더를 이 윈도우로 드래그하고 아래에서 포맷을 선택한 다음 ‘변환’을 누르십시오. 결과는 출력 폴더에 저장되며 원본 파일은 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>여기에 비디오나 폴더를 드래그하십시오</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>실패: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>다음 찾기</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>이전 찾기</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>자동 스크롤</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For the DVD ripper, which is still being made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For the downloader, which is still being made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation>포맷</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>로그의 반대쪽 끝에서 계속하여 찾았습니다.</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>알겠습니다</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>그래픽</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>H.264 디코더</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>H.264 인코더</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>HEVC 디코더</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>HEVC 인코더</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>하드웨어 정보</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>하드웨어 가속:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>최고 해상도</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>기록되는 즉시 여기에 표시됩니다: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Kestrel 도움말</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Kestrel 로그</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Kestrel 로그 — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>더 알아보기</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>이 텍스트가 있는 줄: %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>이 텍스트가 있는 줄: %1, 계속 찾는 중… %2%(Esc로 중단)</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>로그 텍스트</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>하드웨어 확인 중</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV 비디오(H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3 오디오</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4 비디오(H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>미디어 파일</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>음악 폴더</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>지정된 로그가 없음</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>아직 선택하지 않음</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>찾은 결과가 없습니다.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files that all have a picture, or all have sound, can be joined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>%1의 도움말 메뉴에서 ‘앱 로그’로 로그를 여십시오.</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>출력 폴더 열기</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>완료되면 출력 폴더 열기</translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>출력 폴더:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>출력 포맷</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>잠시 기다려 주십시오. 서버에서 업데이트 정보를 가져오는 중…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>이 파일을 첨부하여 %1(으)로 메일을 보내 주십시오: %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>이 주소로 메일을 보내 주십시오: %1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>기본 오디오 언어</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>마지막 변환에서 문제가 감지되었습니다.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>프로세서</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>프록시 주소</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>프록시 포트</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Kestrel 종료</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>파일을 읽거나 출력 폴더에 쓸 권한이 없습니다. 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>비디오 녹화</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>화면, 웹캠, iPhone 비디오를 녹화할 수 있습니다. 라이브 스트림, 게임, 데스크탑 등 무엇이든 YouTube용 MOV로 기록합니다. 화면과 웹캠을 동시에 녹화할 수도 있습니다.</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>녹화기</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>실행 복귀</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>출시 노트:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>문제 신고</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>프로파일 재설정</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>사본 저장</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>사본 저장…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>저장 중… %1%(Esc로 중단)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>화면 기록을 사용할 수 없음</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>가로로 스크롤</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>세로로 스크롤</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>설정 검색</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>찾는 중… %1%(Esc로 중단)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>피드백 보내기</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>리포트 보내기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>파일 보기</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>알림 표시</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>이 텍스트가 있는 줄만 보기</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>완료되면 컴퓨터 종료</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>스냅샷 폴더</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>로그가 늘어나는 동안 끝에 머무르기</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>중단했습니다.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>추천</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>이 파일은 로그 자체입니다. 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera's picture is not shown before it is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>변환기가 이 포맷을 만들 수 없습니다. 다른 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>변환기를 시작할 수 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>변환기가 이 파일을 변환할 수 없습니다.</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>변환기가 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>사본을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>사본을 저장했습니다.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>디스크를 읽거나 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>출력 폴더의 디스크에 이 크기의 파일을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download failed. The details tell what the engine said.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>파일에 변환할 수 있는 비디오나 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>파일이 손상되었거나 불완전합니다.</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>파일이 더 이상 원래 위치에 없습니다.</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>파일이 삭제되었습니다. 내용은 계속 표시됩니다.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>처음 %1만 복사했습니다. 전체가 필요하면 사본을 저장하십시오.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>폴더를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>로그를 읽을 수 없음</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>그 사이에 로그가 짧아졌습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>출력 폴더가 없습니다. 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>출력 폴더가 읽기 전용입니다. 설정에서 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen of a Wayland session cannot be recorded. Log in to a session of X11 (Xorg) to record it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>화면 기록은 Mac OS Lion 이상에서만 지원됩니다.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>비디오, 오디오, DVD 변환부터 비디오 파일 편집, 트랜스코딩, 압축, 조정, 온라인 미디어 다운로드, 화면과 웹캠 녹화까지 가능한 가장 강력한 비디오 처리 소프트웨어입니다.</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>미디어 파일을 읽는 도구가 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>트랜스코더가 올바르게 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>트랜스코더가 없습니다. 앱을 다시 설치하세요.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no film at this address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>아직 로그가 없음</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>디스크에 남은 공간이 없습니다. 공간을 확보한 다음 다시 변환하십시오.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>이 파일이 없습니다.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>메모리가 부족하여 이 파일을 변환할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>선택에 따라 MP4, MKV, WebM 또는 MP3로 변환됩니다.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>이 컴퓨터에는 H.264 비디오용 하드웨어 인코더가 없습니다.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>이 파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>이 파일에는 변환할 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>이 파일이 손상되었거나 비디오와 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>This film has no sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>이 폴더에는 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>텍스트 파일이 아닙니다</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>비디오 또는 사운드 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>이 텍스트가 있는 줄이 너무 많아 최신 %1줄을 표시합니다.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>트랜스코더</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>업데이트 서버에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>무제한</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>프록시 사용</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>버전: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>비디오 변환기</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>비디오 폴더</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>웹사이트 방문:</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>웹사이트 방문</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM 비디오(VP9, Opus)</translation>
    </message>
    <message>
        <source>What the server sent is no film.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the site answered could not be understood.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation>윈도우</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>문제를 해결할 수 있도록 로그 파일을 보내 주시겠습니까?</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>이 파일을 읽을 권한이 없습니다.</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>최신 버전입니다</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>메일 프로그램을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>화면을 비디오로</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>약 %1시간 남음</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>약 %1분 남음</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>약 1분 남음</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>팁 닫기</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for children</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>1분 미만 남음</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>팁 보기</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
