<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="bn" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_timed_application">
        <source>Alarms</source>
        <translation>অ্যালার্ম</translation>
    </message>
    <message id="qtn_timed_untitled">
        <source>Alarm</source>
        <translation>অ্যালার্ম</translation>
    </message>
    <message id="qtn_timed_day_and_time">
        <source>%1, %2</source>
        <extracomment>A day, such as Fri, Nov 20, and a time of day</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message id="qtn_timed_snoozed">
        <source>Snoozed, rings again at %1.</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>স্নুজ করা হয়েছে, %1-এ আবার বাজবে।</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>বন্ধ করুন</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>বন্ধ করা হয়েছে।</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>%Ln মিনিট পরে আবার বাজান</numerusform>
            <numerusform>%Ln মিনিট পরে আবার বাজান</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>%Lnটি মিস করা অ্যালার্ম</numerusform>
            <numerusform>%Lnটি মিস করা অ্যালার্ম</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>ডিভাইস বন্ধ ছিল</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>ডিভাইস সময়মতো জাগেনি</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>ঘড়ির সময় এগিয়ে দেওয়া হয়েছিল</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>ডিভাইস সময়মতো তৈরি ছিল না</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>এটি বেজেছিল, কিন্তু কেউ সাড়া দেয়নি</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>এবং আরও %Lnটি</numerusform>
            <numerusform>এবং আরও %Lnটি</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>এখন বাজান</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>এখন বাজান: %1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>অ্যালার্ম ফিরিয়ে আনা হয়েছে</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>অ্যালার্মের ফাইলটি নষ্ট হয়ে গিয়েছিল। তার জায়গায় আগের একটি কপি এসেছে: শেষ পরিবর্তনগুলি নাও থাকতে পারে, অনুগ্রহ করে আপনার অ্যালার্মগুলি দেখে নিন।</translation>
    </message>
</context>
</TS>
