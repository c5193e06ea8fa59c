<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="vi" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Đồng hồ báo thức</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Xem giờ và đặt báo thức</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>báo thức;thức dậy;giờ;báo lại;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Mặt đồng hồ và báo thức của bạn, được làm cho màn hình cảm ứng và cũng thoải mái trên máy tính. Báo thức nằm trong một dịch vụ riêng: chúng reo dù đồng hồ có mở hay không, theo giờ địa phương khi đổi giờ mùa hè và khi đi xa, và reo thành tiếng ngay cả khi âm báo bị thiếu hoặc hỏng.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Báo thức lặp lại vào những ngày bạn chọn, với mười ba âm báo riêng hoặc bất kỳ tệp nào của bạn</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Dừng bằng cách trượt và nút Báo lại to, để không báo thức nào kết thúc do vô ý</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Cho biết báo thức nào bị lỡ và vì sao; lệnh alarmctl chứng minh trước rằng báo thức tiếp theo sẽ được nghe thấy</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Sáng và tối, chữ lớn, ngôn ngữ viết từ phải sang trái, bàn phím và trình đọc màn hình</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Trang chính: mặt đồng hồ và bốn báo thức</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Trình chỉnh sửa: mặt quay để chọn giờ</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Báo thức đang reo: báo lại, hoặc trượt để dừng</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Trang chính ở chế độ tối</translation>
    </message>
</context>
</TS>
