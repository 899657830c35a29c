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
        <translation>%1(사운드만)</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - 타이틀 %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 MB는 이 길이의 파일에 너무 작습니다.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 외 %2개</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>앵글 %1개</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>챕터 %1개</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1개 누락</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>파일 %1개 선택됨</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1은(는) 다른 파일보다 소리 트랙이 적습니다. 없는 부분은 무음입니다.</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%2개 중 %1개 화면이 늦게 와서 앞 화면으로 대신했습니다.</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%2초 중 %1초를 읽었습니다(오류 %3개)</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%2초 중 %1초를 읽었습니다(오류 1개)</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%2초 중 %1초를 읽었습니다.</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>초당 %1프레임</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>%1초를 읽었습니다(오류 %2개)</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>%1초를 읽었습니다(오류 1개)</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>디스크의 섹터 %1개를 읽을 수 없어 사본에서 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>디스크의 섹터 %1개를 읽을 수 없어 이미지에서 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>영상의 섹터 %1개를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>타이틀 %1개</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>%1개 남음</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1배</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/초</translation>
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
        <translation>128 kbit/s</translation>
    </message>
    <message>
        <source>160 kbit/s</source>
        <translation>160 kbit/s</translation>
    </message>
    <message>
        <source>192 kbit/s</source>
        <translation>192 kbit/s</translation>
    </message>
    <message>
        <source>23.976</source>
        <translation>23.976</translation>
    </message>
    <message>
        <source>24</source>
        <translation>24</translation>
    </message>
    <message>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <source>256 kbit/s</source>
        <translation>256 kbit/s</translation>
    </message>
    <message>
        <source>2560 × 1440</source>
        <translation>2560 × 1440</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29.97</translation>
    </message>
    <message>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <source>320 kbit/s</source>
        <translation>320 kbit/s</translation>
    </message>
    <message>
        <source>448 kbit/s</source>
        <translation>448 kbit/s</translation>
    </message>
    <message>
        <source>4K (3840 × 2160)</source>
        <translation>4K(3840 × 2160)</translation>
    </message>
    <message>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59.94</translation>
    </message>
    <message>
        <source>60</source>
        <translation>60</translation>
    </message>
    <message>
        <source>64 kbit/s</source>
        <translation>64 kbit/s</translation>
    </message>
    <message>
        <source>640 kbit/s</source>
        <translation>640 kbit/s</translation>
    </message>
    <message>
        <source>96 kbit/s</source>
        <translation>96 kbit/s</translation>
    </message>
    <message>
        <source>A chapter for each joined file</source>
        <translation>연결한 파일마다 챕터 만들기</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>선택한 타이틀만 메뉴 없이 담은 디스크로, 플레이어에서 바로 재생됩니다.</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>%1 종류의 파일에는 이 프리셋에 필요한 항목을 담을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>폴더에는 복사할 섹터가 없습니다. 다른 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>%@의 새로운 버전이 있습니다</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>프리셋에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>%1에 녹화가 시작될 예정입니다.</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>AC-3 오디오</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>AIFF 오디오</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>APNG 애니메이션</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>AVI 비디오(MPEG-4, MP3)</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>AVI 비디오(Motion JPEG, PCM)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>약 %1.</translation>
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
        <translation>추가</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1개 추가</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>파일 추가…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>자막 파일 추가…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>자막 추가 중…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>비디오나 페이지의 주소, 예: https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>목표</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>모든 포맷</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>모든 포맷…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>메뉴를 포함한 디스크의 모든 파일을 폴더에 저장합니다.</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>모든 작업을 완료했습니다.</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>모든 작업이 끝났습니다.</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>모든 언어</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>선택한 타이틀의 모든 사운드 트랙을 챕터와 함께 저장합니다.</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>한 서버에서 여러 개 허용</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>이미 목록에 있음: %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>항상</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>항상 유지</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>항상, 프레임 수 두 배</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>주소 예: http://proxy.example.com 또는 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>앵글</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>다른 폴더…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>앱 로그</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>보관용</translation>
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
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>아티스트와 앨범. %1에는 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>포맷 설정대로</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>원본과 동일</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>사이트에 요청하는 중…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>최대</translation>
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
        <source>Begin</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>지정한 시각에 시작…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>바로 시작</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>원본과 같은 위치</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>최고 품질</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>비트율</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>트랙의 비트율</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>왼쪽 하단</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>오른쪽 하단</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>빌드 날짜: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>화면에 새겨 넣기</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>CAF 오디오(ALAC)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>카메라 %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>화면 속 카메라 %1</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>화면 속 카메라</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>시험 변환 취소</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>취소: %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>사용할 수 없음</translation>
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
        <translation>채널</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>소리 채널: %1. %2개에서 %3개로 됩니다.</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>챕터 %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>완성된 파일에 챕터가 빠져 있습니다.</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>챕터, 언어 및 자막의 색상(MPEG-2 파일에는 담을 수 없음)</translation>
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
        <translation>사본 확인 중…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>완성된 파일 확인 중…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>비디오 선택</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>영상 선택…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>윈도우 선택</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>위에서 기록할 대상을 선택한 다음 ‘기록하기’를 누르십시오.</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>영역 선택</translation>
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
        <source>Click the window that is to be recorded</source>
        <translation>녹화할 윈도우를 클릭하세요</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>시계 방향</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>컴퓨터 및 마이크</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>컴퓨터와 마이크, 각각 한 트랙</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>연결하는 중…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>대비</translation>
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
        <translation>10초 변환 중: %1%</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>변환 중…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>변환 중… %1%</translation>
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
        <translation>모서리</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>셋부터 카운트다운</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>시계 반대 방향</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>커버</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>오려두기</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>자르기 및 편집</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>자르기 및 편집…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>정확하게 자르기(다시 인코딩)</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>아래쪽 잘라내기</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>왼쪽 잘라내기</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>오른쪽 잘라내기</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>위쪽 잘라내기</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>자르기 또는 변환…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>인코딩 없이 자름: %1초 또는 그 이전의 키프레임에서 시작합니다.</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>자르기</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>DV 비디오</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD (720 × 576)</source>
        <translation>DVD(720 × 576)</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVD 리퍼</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>타임코드와 같은 카메라 데이터.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>디인터레이스</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
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
        <translation>기기</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>디스크 플레이어(VOB)</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>메뉴가 있는 디스크 폴더</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>디스크 이미지(ISO)</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>디스크 이미지</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>녹화 버리기</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>녹화하지 않기</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>종료하지 않기</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>문제와 함께 완료됨</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>문제와 함께 완료: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>완료: %1</translation>
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
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>진행 중인 다운로드는 시작할 때의 제한을 유지합니다.</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>영역을 드래그한 다음 Return 키를 누르십시오</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>자막을 표시하지 않는 재생기를 위해 영상에 그려 넣습니다.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
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
        <translation>E-AC-3 오디오</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>소프트웨어로 인코딩 중</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>크기를 맞추기 위해 다시 인코딩하는 중</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>트랙을 복사할 수 없어 인코딩 중</translation>
    </message>
    <message>
        <source>End</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>여기에서 끝</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>음량 고르게 하기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>FLAC 오디오</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>FLV 비디오(H.264, AAC)</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>페이드 인</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>페이드 아웃</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>실패: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>더 빠름, 더 큰 파일</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>가장 빠름, 가장 큰 파일</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>파일을 자르거나 연결할 수 있지만 둘을 동시에 할 수는 없습니다.</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>텔레비전에서 녹화한 영화(24)</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>영상과 화면이 없는 파일은 소리 파일로만 합칠 수 있습니다.</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>이 주소의 비디오</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>검은 여백 찾기</translation>
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
        <translation>마무리 중…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>첫 번째 패스</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>자동 스크롤</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>모든 파일에 적용</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>예: %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>포맷</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>사용 중인 포맷과 옵션을 다음 이름으로 저장합니다:</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>포맷</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>로그의 반대쪽 끝에서 계속하여 찾았습니다.</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>시작 챕터</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>풀 HD(1920 × 1080)</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>첫 번째 외의 표지 그림.</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>첫 번째 이외의 영상(다른 앵글이나 미리보기).</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>GIF 애니메이션</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>게임기</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>좋은 품질</translation>
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
        <translation>HD(1280 × 720)</translation>
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
        <translation>HDR(하이 다이내믹 레인지)</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>하이 다이내믹 레인지를 표준 범위로 변환합니다.</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>고품질(더 느림)</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>최고 해상도</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>디스크 저장 방법</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>가져오기…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>Wayland 세션에서는 무엇을 녹화할지 데스크탑이 묻습니다. 미리 지정할 수 없습니다.</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>기록되는 즉시 여기에 표시됩니다: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>타이틀을 그대로 유지하거나 선택에 따라 MP4, MKV 또는 MP3로 변환합니다.</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>작업을 실행 중입니다.</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>아직 실행 중인 작업이 있습니다.</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>모든 파일을 하나로 연결</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>하나로 연결</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>계속 실행</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>계속 기다리기</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>나머지 부분 유지</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>원본의 날짜 유지</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>맞는 트랙은 그대로 유지</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>트랙으로 유지</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>종료할 때까지 유지됨</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>가능하면 유지</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>유지: %1</translation>
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
        <translation>이 파일의 길이를 알 수 없어 목표 크기에 맞출 수 없습니다.</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel은 이 프리셋의 파일 종류 ‘%1’을(를) 알지 못합니다.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>%1의 언어</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>소리 언어</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>자막 언어</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>더 알아보기</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>제외: %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
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
        <source>Looking for a newer download engine…</source>
        <translation>새 다운로드 엔진을 찾는 중…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>무손실 사운드: %1. %2(으)로 됩니다.</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>M4A 오디오(AAC)</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>M4A 오디오, 무손실(ALAC)</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>MKA 오디오(Opus)</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>MKV 비디오(AV1, Opus)</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV 비디오(H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>MKV 비디오(H.265, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>MKV 비디오(VP9, Opus)</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>MKV 비디오, 고품질(H.265, FLAC)</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>MKV 비디오, 무손실(FFV1, FLAC)</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>MOV 비디오(DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>MOV 비디오(H.264, AAC)</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>MOV 비디오(ProRes, PCM)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3 오디오</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>MP4 비디오(AV1, Opus)</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4 비디오(H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>MP4 비디오(H.265, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>웹 페이지용 MP4 비디오(1080p)</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>MPEG 비디오(MPEG-2, MP2)</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>MPEG-4 동영상(MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>MXF 비디오(DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>MXF 비디오(MPEG-2, PCM)</translation>
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
        <translation>도구의 메시지</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>마이크</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>좌우 뒤집기</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>모노</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>음악 폴더</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>나의 프리셋</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>프리셋 이름:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>안 함</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>화면에 카메라 없음</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>검색과 일치하는 포맷이 없습니다.</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>지정된 로그가 없음</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>부분은 최대 %1개까지만 유지할 수 있습니다.</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>사본의 영상을 디코딩할 수 없습니다.</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>이 영상을 디코딩할 수 없습니다.</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>이 주소에서 응답하는 서버가 없습니다. 주소를 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>사운드 없음</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>속도 제한 없음</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>자막 없음</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>아직 선택하지 않음</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>회전 안 함</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>아직 사용되지 않음</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>아직 사용되지 않음, 종료할 때까지 유지됨</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>%1초 위치에서 아무것도 디코딩할 수 없습니다.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>찾은 결과가 없습니다.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>파일에서 아무것도 변환할 수 없습니다.</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>영상을 전혀 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>남아 있는 기록이 없습니다.</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>이 파일에서 유지되는 내용이 없습니다.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>기록된 내용이 없습니다.</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>OGG 오디오(Vorbis)</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>OGV 비디오(Theora, Vorbis)</translation>
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
        <translation>구형 휴대폰(3GP)</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>타이틀 하나를 디스크 폴더로</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>%2초 중 %1초만 받았습니다.</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>자막 트랙은 하나만 새겨 넣을 수 있으며 나머지는 제외됩니다.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>폴더 열기…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>이미지 열기…</translation>
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
        <translation>옵션</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Opus 오디오</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>원본 사운드, MKA 파일</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>원본 그대로, MOV 파일</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>원본 그대로, TS 파일</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>원본 그대로, MKV 파일</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>원본 그대로, MP4 파일</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>출력</translation>
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
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>옵션 페이지</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>화면의 일부…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>완성된 파일의 일부가 빠져 있습니다.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>여기에 주소를 붙여넣거나 드래그하십시오</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>휴대폰</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>휴대폰(H.265)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>영상</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>선택한 타이틀의 영상, 모든 사운드, 색상이 있는 자막 및 챕터를 다시 인코딩하지 않고 저장합니다.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>초당 프레임 수</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>부분 %1/%2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>유지할 부분</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>카메라 영상의 위치</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>자막의 위치와 스타일: %1. %2에는 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>원본 재생</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>어디서나 재생</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>디스크에 공간이 있고 이 폴더에 쓸 수 있는지 확인하십시오: %1</translation>
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
        <translation>위치</translation>
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
        <translation>프리셋</translation>
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
        <translation>프로세서 코어</translation>
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
        <translation>DVD를 넣거나 여기에 디스크 이미지나 폴더를 드래그하십시오</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>영상과 사운드를 합치는 중…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>품질(낮을수록 좋음)</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>QuickTime 동영상(MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Kestrel 종료</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>디스크 읽는 중…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>디스크 읽는 중… 드라이브에 따라 30초 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>파일을 읽거나 출력 폴더에 쓸 권한이 없습니다. 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>파일 읽는 중…</translation>
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
        <translation>기록하기</translation>
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
        <translation>기록</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>녹화 %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>%1에 녹화가 시작됩니다. 바로 시작하려면 녹화를 누르세요.</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>%1초 후에 기록을 시작합니다. 바로 시작하려면 ‘기록하기’를 누르십시오.</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>중단 후 복구되었습니다.</translation>
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
        <translation>부분 제거</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>부분 파일과 함께 제거</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>완료된 항목을 목록에서 제거합니다. 파일은 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>이름 변경…</translation>
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
        <translation>결과</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>안전 모드: 결과 전체 확인</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>저장 위치…</translation>
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
        <translation>프리셋으로 저장</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>프리셋으로 저장…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>저장됨: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>저장 중…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>저장 중… %1%(Esc로 중단)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>화면 %1(%2 × %3)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>화면 기록을 사용할 수 없음</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>화면 또는 윈도우(데스크탑이 물음)</translation>
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
        <translation>포맷 검색</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>검색: MKV, AV1, FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>찾는 중… %1%(Esc로 중단)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>두 번째 패스</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>트랙을 고르려면 목록에서 파일을 하나 선택하십시오.</translation>
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
        <translation>여러 포맷</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>파일 보기</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>클릭 표시</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>폴더에서 보기</translation>
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
        <source>Show the pointer</source>
        <translation>포인터 표시</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>완료되면 컴퓨터 종료</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>최대 크기</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>크기: 약 %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>더 느림, 더 작은 파일</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>가장 느림, 가장 작은 파일</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>작게(640 × 480)</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>작은 파일</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>작은 MP4 비디오(720p)</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>작은 파일</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>스냅샷</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>스냅샷 폴더</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>사운드</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>사운드 레벨</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>%1의 소리: %2. 합친 파일에는 이를 위한 트랙이 없습니다.</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>컴퓨터의 사운드</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>사운드만 그대로(MKA)</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>사운드 트랙 %1은(는) 영상에서 너무 늦게 시작되어 제때 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>이 영상에 없는 사운드 트랙 %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>사운드: %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>사운드: %1. %2에는 사운드 트랙을 하나만 담을 수 있습니다.</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>사운드: %1. 포맷을 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>원본</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>원본(드래그하여 잘라내기)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>다운로드별 속도 제한</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>여기에서 시작</translation>
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
        <translation>일정한 품질</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>스테레오</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>중단 시점</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>%1분 후 중단</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>중단하고 종료</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>중단하고 재시동</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>중단했습니다.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>중단하는 중…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>이 영상에 없는 자막 트랙 %1</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>자막</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>완성된 파일에 자막이 빠져 있습니다.</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>화면 속 자막</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>%1의 자막: %2. 합치면 뒤에 오는 파일의 자막은 남지 않습니다.</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>이미지 자막: %1. %2에는 담을 수 없습니다. 화면에 새겨 넣거나 MKV를 선택하십시오.</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>자막: %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>자막: %1. %2에는 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>자막: %1. 합친 파일 중 첫 번째에만 새겨 넣습니다.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>자막: %1. 변경된 시간에 맞출 수 없습니다. 유지하려면 화면에 새겨 넣으십시오.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>추천</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>서라운드 5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>TS 비디오(H.264, AC-3)</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>TV(1080p)</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>TV(4K, HDR)</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>태블릿</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>이 파일은 로그 자체입니다. 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>기록할 영역이 화면 밖에 있습니다.</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>%2의 첨부 파일 %1. 합치면 뒤에 오는 파일의 것은 남지 않습니다.</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>첨부 파일 %1. %2에는 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>방송이 아직 시작되지 않았습니다. 시작된 후에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>카메라를 열 수 없습니다. 다른 프로그램이 사용 중일 수 있습니다.</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>카메라가 사라졌습니다. 카메라 영상은 거기에서 끝납니다.</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>챕터. %1에는 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>선택한 카메라가 없어 대신 %1을(를) 녹화합니다.</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>선택한 마이크가 없어 대신 기본 마이크를 녹음합니다.</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>선택한 타이틀을 옆에 있는 포맷의 파일로 변환하며, 원하는 만큼 작게 만들 수 있습니다.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>컴퓨터가 %1초 후에 종료됩니다.</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>변환이 끝나기 전에 중단되었습니다.</translation>
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
        <translation>변환기가 더 이상 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>변환기가 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>사본을 다시 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>사본을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>사본의 타이틀이 %2개가 아니라 %1개입니다.</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>복사가 중단되었습니다. 다시 시작하면 이어서 진행합니다.</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>사본을 저장했습니다.</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>%1의 표지 그림. 합치면 뒤에 오는 파일의 것은 남지 않습니다.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>커버 이미지. %1에는 담을 수 없습니다.</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>커버 이미지. 이 방법으로 파일을 연결하면 사라집니다.</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>녹화 날짜. %1에는 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>데스크탑이 화면 녹화를 허용하지 않았습니다.</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>데스크탑이 녹화를 허용했지만 영상이 오지 않습니다. PipeWire가 실행 중인가요?</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>녹화가 시작되면 데스크탑이 화면을 공유합니다. 그동안 단축키는 Kestrel의 윈도우에서만 작동합니다.</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>데스크탑 포털이 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>데스크탑 포털이 화면 녹화를 허용하지 않습니다: %1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>디스크를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>디스크가 제시간에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>디스크에 해당 타이틀, 챕터 또는 앵글이 없습니다.</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>디스크 이미지가 영상보다 먼저 끝납니다.</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>디스크가 손상되어 내용을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>이 사용자는 디스크를 읽을 권한이 없습니다.</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>디스크 도구를 시작할 수 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>디스크를 읽거나 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>임시 파일용 디스크가 가득 찼습니다. 공간을 확보하고 다시 변환하세요.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>디스크 공간이 부족하여 기록을 마무리할 수 없습니다. Matroska 파일로 남습니다.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>디스크 공간이 부족하여 기록을 마무리할 수 없습니다. Matroska 파일 %1개로 남습니다.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>출력 폴더의 디스크에 이 크기의 파일을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>디스플레이 %1을(를) 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>다운로드 엔진을 업데이트할 수 없습니다.</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>다운로드 엔진이 작동하지 않습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>다운로드 엔진이 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>다운로드 엔진이 버전 %1(으)로 업데이트되었습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>다운로드에 실패했습니다. 나중에 다시 시도하십시오. 세부사항에서 엔진의 메시지를 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>%1용 인코더가 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>파일을 쓸 수 없습니다.</translation>
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
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>영상은 받았지만 자막, 표지 또는 챕터를 추가할 수 없었습니다.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>이 영상은 복사 방지되어 있어 다운로드하지 않습니다. 해당 사이트에서 시청하세요.</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>이 비디오는 더 이상 없습니다. 다른 주소에서 찾으십시오.</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>원하는 형태의 비디오가 없습니다. 다른 해상도나 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>비공개이거나 회원 전용 영상이라 다운로드할 수 없습니다. 다른 주소에서 찾아보세요.</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>선택한 타이틀의 영상을 디스크에 있는 그대로 저장합니다. 챕터와 언어 이름은 포함되지 않습니다.</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>더 세밀한 화면. %1비트 %2이(가) %3비트 %4이(가) 됩니다.</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>더 세밀한 사운드: %1. %2비트에서 %3비트로 됩니다.</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>완성된 파일을 다시 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>완성된 파일의 크기가 %2바이트가 아니라 %1바이트입니다.</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>완성된 파일의 트랙이 원하는 것과 다릅니다: %2 대신 %1.</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>완성된 파일의 길이가 %2초가 아니라 %1초입니다.</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>완성된 파일이 손상되었습니다: 오류 %1개.</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>완성된 파일이 손상되었습니다: 오류 1개.</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>완성된 파일이 원하는 크기보다 큽니다.</translation>
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
        <translation>임시 파일용 폴더에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>폴더가 너무 커서 일부 파일만 추가되었습니다.</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>불규칙한 프레임 간격. 초당 %1프레임으로 고르게 됩니다.</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>트랙의 언어. %1에는 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>마지막 %1초에는 화면이 없습니다.</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>마지막 %1초에는 소리가 없습니다. 사운드 서버가 사라졌습니다.</translation>
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
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>하이 다이내믹 레인지의 마스터링 데이터. %1에는 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>이 작업의 옵션을 읽을 수 없습니다. 주소를 다시 추가하십시오.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>이 작업의 옵션을 읽을 수 없습니다. 파일을 다시 추가하십시오.</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>영상의 다른 앵글: %1개</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>출력을 쓸 수 없습니다.</translation>
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
        <translation>영상을 인코딩해야 합니다(%1).</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>크기에 맞도록 영상을 %1 × %2(으)로 줄입니다.</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>영상이 없습니다. 사이트가 사운드만 제공했습니다.</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>완성된 파일의 영상이 똑바로 서 있지 않습니다.</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>유지할 부분이 파일의 끝보다 뒤에 있습니다.</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>녹화 장소. %1에는 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>플레이어가 없습니다. 응용 프로그램을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>dvdauthor 프로그램이 없습니다. 설치하십시오.</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>프록시가 연결을 거부합니다. 설정에서 주소를 확인하십시오.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>기록을 마무리할 수 없습니다. Matroska 파일로 남습니다.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>기록을 마무리할 수 없습니다. Matroska 파일 %1개로 남습니다.</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>디스크가 거의 가득 차서 기록을 끝냈습니다.</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>%1에 시작될 예정이던 녹화가 이루어지지 않았습니다.</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>기록이 중단되었습니다.</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>지난번과 같은 화면 또는 윈도우</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>Wayland 세션의 화면은 데스크탑에 포털이 있으면 녹화할 수 있지만 여기에는 없습니다. 데스크탑용 xdg-desktop-portal을 설치하거나 X11(Xorg) 세션으로 로그인하세요.</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>화면 기록은 Mac OS Lion 이상에서만 지원됩니다.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>서버가 연결을 끊었거나 응답할 수 없었습니다. 받은 내용은 유지됩니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>서버가 연결을 끊었습니다. %1초 후에 다시 시도합니다</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>서버가 비디오의 일부만 보냈습니다.</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>서버가 비디오 제공을 거부합니다. 나중에 다시 시도하거나 브라우저에서 페이지를 열어 이유를 확인하십시오.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>서버가 지금은 더 이상 요청을 받지 않습니다. %1분 후에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>서버가 지금은 더 이상 요청을 받지 않습니다. 잠시 후에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>서버의 인증서가 유효하지 않아 서버의 신원을 믿을 수 없습니다. 아무것도 다운로드하지 않았습니다. 주소와 이 컴퓨터의 날짜를 확인하세요.</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>설정의 폴더</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>이 사이트는 사용자의 국가에서 이 비디오를 제공하지 않습니다. 설정에서 다른 국가의 프록시를 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>사이트가 변경되어 다운로드 엔진이 더 이상 인식하지 못합니다. 엔진을 업데이트하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>사이트가 로그인한 사람에게만 이 영상을 보여 주는데 Kestrel은 로그인하지 않습니다. 다른 주소에서 찾아보세요.</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>사이트가 먼저 시청자의 나이를 확인하려 하는데, 이는 로그인해야만 가능합니다. 다른 주소에서 찾아보세요.</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>스냅샷을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>사운드를 기록할 수 없습니다. 사운드 서버가 실행 중입니까?</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>사운드를 인코딩해야 합니다(%1).</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>사운드 서버가 종료된 이후의 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>사운드가 없습니다. 사이트가 영상만 제공했습니다.</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>사운드 서버가 잠시 끊겨 그 부분에는 소리가 없습니다.</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>사운드. %1에는 영상만 담을 수 있습니다.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>비디오, 오디오, DVD 변환부터 비디오 파일 편집, 트랜스코딩, 압축, 조정, 온라인 미디어 다운로드, 화면과 웹캠 녹화까지 가능한 가장 강력한 비디오 처리 소프트웨어입니다.</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>자막 파일 %1을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>자막 파일 %1은(는) 텍스트로는 너무 큽니다.</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>자막이 없습니다. 사이트가 제공하지 않았습니다.</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>화면에 그려 넣을 자막이 이 영상에 없습니다.</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>제목. %1에는 넣을 수 없습니다.</translation>
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
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>화면의 투명도. %1에는 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>디스크 전체를 섹터별로 하나의 파일에 저장하며, 디스크처럼 재생됩니다.</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>전체 영상을 유지합니다.</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>윈도우가 너무 작아 기록할 수 없습니다.</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>윈도우가 닫혔거나 최소화되었습니다.</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>검은 여백이 없습니다.</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>이 주소에 여러 비디오가 있습니다. 다시 추가하여 그중에서 선택하십시오.</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>이 주소에는 비디오가 너무 많아 모두 확인할 수 없습니다. 그중 하나의 주소를 추가하십시오.</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>프리셋이 너무 많습니다. 먼저 몇 개를 삭제하십시오.</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>네트워크에 연결되어 있지 않습니다. 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>디스크가 없습니다. 디스크를 넣거나 이미지 또는 폴더를 선택하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>기록할 수 있는 디스플레이가 없습니다.</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>이 주소에는 비디오가 없습니다. 비디오를 재생하는 페이지를 찾으십시오.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>아직 로그가 없음</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>더 새로운 다운로드 엔진이 없습니다.</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>이 위치에는 영상이 없습니다.</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>‘%1’ 화면이 없습니다. 사용할 수 있는 화면: %2.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>디스크에 남은 공간이 없습니다. 공간을 확보한 다음 다시 변환하십시오.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>디스크에 남은 공간이 없습니다. 공간을 확보하고 다시 시도하십시오. 받은 내용은 유지됩니다.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>이 파일이 없습니다.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>비디오 또는 사운드 파일이 없습니다.</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>윈도우 %1이(가) 보이지 않습니다.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>메모리가 부족하여 이 파일을 변환할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>메모리가 부족하여 이 디스크를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>공간이 부족합니다. %1이(가) 필요하지만 %2만 남아 있습니다. 공간을 확보하거나 설정에서 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>변환할 항목이 없습니다.</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>디스크 공간이 너무 부족하여 기록할 수 없습니다.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>선택에 따라 MP4, MKV, WebM 또는 MP3로 변환됩니다.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>이 주소는 Kestrel이 아는 사이트의 주소가 아닙니다. 주소를 확인하거나 비디오를 재생하는 페이지를 찾으십시오.</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>이 선택은 종료할 때까지 유지됩니다.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>이 컴퓨터에는 H.264 비디오용 하드웨어 인코더가 없습니다.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>이 디스크를 이미 이 폴더에 복사하고 있습니다.</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>이 디스크는 복사 방지되어 있어 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>이 파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>이 파일에는 변환할 영상도 사운드도 없습니다.</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>이 파일에는 변환할 영상이 없습니다.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>이 파일에는 변환할 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>이 파일에는 Kestrel의 프리셋이 없습니다.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>이 파일이 손상되었거나 비디오와 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>이 비디오에는 사운드가 없습니다. 화면이 있는 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>이 폴더에는 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>이름이 똑같이 %1인 다른 디스크입니다.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>다른 디스크입니다: %2 대신 %1.</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>이 주소에서는 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>프리셋이 아닙니다.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>텍스트 파일이 아닙니다</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>비디오 DVD가 아닙니다. VIDEO_TS가 없습니다.</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>비디오 또는 사운드 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>이 프리셋에는 이름이 없습니다.</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>이 프리셋은 영상도 사운드도 유지하지 않습니다.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>이 프리셋은 더 새로운 버전의 Kestrel에서 만들었습니다.</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>이 타이틀에는 유지할 사운드가 없습니다.</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>녹화가 시작되는 시각</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>타임라인</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>타이틀</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>타이틀 %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>사본의 타이틀 %1에 챕터가 %3개가 아니라 %2개 있습니다.</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>사본의 타이틀 %1의 트랙이 디스크와 다릅니다.</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>사본의 타이틀 %1의 길이가 %3초가 아니라 %2초입니다.</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>타이틀 %1, 본편</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>타이틀을 MPEG-2 파일로</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>디스크의 타이틀</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>타이틀 그대로(MKV)</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>끝 챕터</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>이 텍스트가 있는 줄이 너무 많아 최신 %1줄을 표시합니다.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>요청이 너무 많습니다. %1초 후에 서버에 다시 요청합니다</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>왼쪽 상단</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>오른쪽 상단</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>트랙 %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>트랜스코더</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>시험 변환</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>10초 시험해 보기</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>표준으로 변환</translation>
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
        <translation>알 수 없는 언어</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>무제한</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>중단할 때까지</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>무제</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>다운로드 엔진 업데이트</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>위아래 뒤집힘</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>이 영역 사용</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>프록시 사용</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>그래픽 하드웨어 사용</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>기본 마이크</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>버전: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>아주 작은 MP4 비디오(480p)</translation>
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
        <translation>비디오 또는 사운드 파일</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>웹의 비디오와 음악을 선택한 형태로 저장합니다.</translation>
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
        <translation>음량</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>WAV 오디오</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>WMA 오디오</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>WMV 비디오</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>네트워크 연결을 기다리는 중</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>디스크 공간을 기다리는 중: %1 필요</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>네트워크를 기다리는 중, %1초 후에 다시 시도</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>서버를 기다리는 중…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>데스크탑 대화상자에서 선택을 기다리는 중…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>대기 중: 이 서버에서 %1개를 다운로드하고 있습니다</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>워터마크</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>웹</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>WebM 비디오(AV1, Opus)</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>WebM 비디오(VP8, Vorbis)</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM 비디오(VP9, Opus)</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>녹화된 내용이 삭제됩니다.</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>받은 내용을 해당 폴더로 옮길 수 없어 현재 위치에 그대로 둡니다.</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>서버가 보낸 것은 비디오가 아닙니다. 브라우저에서 주소를 열어 무엇인지 확인하십시오.</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>사이트의 응답을 이해할 수 없습니다. 다운로드 엔진을 업데이트하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>이 프리셋의 결과는 크기에 맞출 수 없습니다.</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>기록할 대상</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>지금 중단하는 작업은 다음에 시작할 때 다시 제안됩니다.</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>필요한 경우</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>전체 화면</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>이미지 너비</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>허용되지 않습니다. 예: http://proxy.example.com 또는 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>윈도우</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>클릭한 윈도우…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>윈도우: %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>인코딩하지 않으면 %1에서 시작하는 부분이 %2에서 시작합니다.</translation>
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
        <translation>지금은 설정을 저장할 수 없습니다. Kestrel을 종료할 때 다시 시도합니다.</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>지난번 Kestrel을 종료할 때 설정을 저장할 수 없었습니다.</translation>
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
        <translation>다른 해설</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>팁 닫기</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>해설</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>어린이용</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>청각 장애인용</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>시각 장애인용</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>강제</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>그대로 유지</translation>
    </message>
    <message>
        <source>large</source>
        <translation>크게</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>1분 미만 남음</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>타이틀 %1과(와) 동일</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>팁 보기</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}, {preset}, {folder} 및 {date}은(는) 실제 값으로 채워집니다.</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>‘%1’을(를) 재생할 수 없습니다.</translation>
    </message>
</context>
</TS>
