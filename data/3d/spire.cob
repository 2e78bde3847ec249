# spire: made by art/build.sh, do not edit
Name spire
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 238
-0.8258 1.2472 0
-0.9174 0.8664 1.1728
-0.5143 0.9544 1.3914
-1.0154 0.5857 1.6592
-0.6167 0.6739 2.0245
-0.3372 0.8239 2.5966
-0.869 0 2.4745
-0.85 0.1815 3.5334
-1.07 0.3009 2.4375
-0.5474 0.3157 3.813
-0.784 0.4522 2.8823
0 0.5627 4.2695
-0.1676 0.6757 3.1536
-0.2657 0.4141 3.8493
-0.4005 0.5165 2.842
-0.4013 1.3185 0.0408
-0.1863 1.0177 1.3789
0 1.35 0.0661
0.2395 0.9654 4.4021
0.4959 1.2117 3.4828
0 1.0032 2.8724
0.8676 1.3102 0.0918
0.4055 1.3323 0.074
0.7766 1.4411 2.0122
0.2486 1.3584 1.7927
-1.0892 1.0287 -0.9558
-1.2324 0.7109 0
-0.976 0 1.3341
-1.2606 0.3252 1.1364
-1.0946 0 0
-1.2942 0.3339 -0.8401
1.1407 1.0773 1.3096
1.0399 1.1364 3.0797
1.3649 0.7873 2.2462
0.4163 0.6487 5.8439
0.8976 0.5178 5.9751
0.7679 0.9905 5.3419
1.4741 0 4.0494
1.5804 0.4444 3.3546
1.3196 0.2818 5.6992
1.2814 0.7392 4.6196
0 0.3097 4.9136
-0.3075 0.1774 4.574
0 0 5.7246
-0.7514 -0.1604 3.1048
-0.6469 -0.3731 4.402
-0.6995 0 4.6777
0 -0.725 5.3737
0 -0.3463 5.6533
-0.3581 -0.5579 5.0257
-0.3682 -0.2124 5.7511
-0.8712 -0.245 1.9389
-0.9495 -0.2449 0.8088
-1.0729 -0.6189 1.7259
-0.9817 -1.4825 0.0546
-1.1275 -1.0649 1.3039
-1.0686 -1.0092 -0.9311
-1.0098 -0.5825 0
-0.9569 -0.2468 -0.5257
0.8663 -1.3082 0
1.0508 -0.9925 1.2709
0.602 -1.1172 1.4891
1.2076 -0.6966 2.0836
0.8107 -0.8859 2.7279
0.3902 -0.9535 2.8112
1.3207 -0.282 5.7013
1.4152 -0.3979 2.9607
0.8475 -0.4888 5.8241
1.1265 -0.6498 4.2448
0.2399 -0.9673 4.4058
0.4129 -0.6434 5.8227
0.6221 -0.8024 4.3274
0.4737 -1.5564 0.0462
0.2535 -1.3852 1.7061
0 -1.7792 0.0906
-0.2809 -1.1324 5.2388
-0.5906 -1.4432 4.2327
0 -1.3952 4.1427
-0.5332 -1.7519 0.0865
-0.8098 -1.5028 2.1774
-0.3247 -1.7739 2.4054
1.0504 -0.9921 -0.8372
1.2187 -0.703 0
1.4987 0 1.8175
1.3515 -0.3486 1.2478
1.3889 0 0
1.2266 -0.3164 -0.5631
0.3867 -0.2231 5.8762
0.8927 0 5.9602
0.4195 0.242 6.2452
-0.947 -1.0349 2.9114
-0.6293 -0.8117 4.3491
-0.8646 -0.4987 3.096
1.5595 0.4023 1.3139
1.0413 0.9835 -0.7355
1.3437 0.7751 0.0512
1.557 0.4017 -0.8313
-2.1461 1.6583 -0.2
-2.3445 1.4834 0.5802
-2.0491 1.7007 0.911
-2.6965 1.3778 1.4544
-2.3255 1.586 1.6544
-1.916 1.6983 2.0153
-2.6814 0.7 2.3452
-2.4225 0.8935 2.6648
-2.8326 1.068 2.0832
-2.2345 1.1161 3.5644
-2.494 1.2631 2.5146
-1.5 1.3865 3.6473
-1.7278 1.6021 3.1776
-1.8821 1.2848 3.8675
-2.1345 1.5038 3.2345
-1.8161 1.72 -0.0741
-1.6801 1.6662 0.7167
-1.5 1.7492 0.0156
-1.2992 1.4951 2.6792
-1.1524 1.5342 1.6047
-1.5 1.657 1.981
-0.8382 1.6816 -0.1359
-1.1946 1.6855 -0.0313
-1.0115 1.5904 0.7186
-1.3281 1.6222 0.6978
-1.9824 1.5792 -1.0961
-1.6798 1.6651 -0.9677
-0.9296 1.7396 -1.1799
-1.3075 1.7331 -1.0261
-2.2297 1.3768 -0.6924
-2.5439 1.2914 -0.2
-3.0236 0.7 1.42
-2.8645 1.0457 0.6338
-2.8449 0.7 -0.2
-2.4901 0.9509 -0.6548
-0.6578 1.4812 0.5376
-0.7995 1.4518 1.5255
-0.5667 1.2287 0.973
-1.1489 1.2374 3.5514
-0.8339 1.0773 3.3421
-0.9547 1.3908 2.7011
-0.4276 0.7 2.2149
-0.4896 0.979 1.5274
-0.6898 0.8699 2.4458
-0.6555 1.1784 2.3326
-1.5 1.0332 3.9028
-1.8622 0.9052 4.0411
-1.5 0.7 4.2086
-2.3523 0.5212 2.5051
-2.1243 0.3463 3.144
-2.2019 0.7 3.4247
-1.5 0.0662 3.4138
-1.5 0.3805 3.7578
-1.8211 0.2086 3.3253
-1.8383 0.5084 3.7411
-2.7298 0.3604 1.9404
-2.8472 0.3587 0.6295
-2.6004 0.0766 1.2921
-1.95 0.0326 -0.2
-2.2701 -0.0143 0.5128
-2.1673 0.081 -0.5765
-2.508 0.1289 -0.2
-2.5793 0.4266 -0.6823
-0.8611 -0.2476 -0.1584
-0.6088 -0.1266 0.5956
-0.9607 -0.2828 0.8043
-0.5761 0.1766 0.9504
-0.7246 -0.1322 1.6027
-1.1059 -0.2458 1.8331
-0.6701 0.526 2.4735
-0.4702 0.4156 1.5413
-0.8339 0.3226 3.3422
-0.6399 0.2128 2.3516
-1.2766 -0.1844 3.1056
-1.1657 0.1884 3.3876
-0.9235 -0.0304 2.8238
-1.1898 -0.3009 -0.2
-1.3171 -0.2812 0.816
-1.5 -0.2289 -0.2
-1.7067 -0.1182 2.7649
-1.8185 -0.0644 1.5376
-1.5 -0.2307 1.7448
-1.7192 -0.0072 -0.2
-1.9039 -0.0361 0.6464
-1.6511 -0.1109 0.65
-0.9728 -0.2608 -1.058
-1.3191 -0.2706 -0.9754
-1.9032 -0.0348 -0.8613
-1.6485 -0.0967 -0.8224
-0.6636 -0.0758 -0.5939
-0.4648 0.1135 -0.1775
-0.2503 0.7 1.1278
-0.3444 0.4072 0.5829
-0.2346 0.7 -0.2
-0.3478 0.4081 -0.7171
-1.1233 0.4866 4.25
-0.8052 0.7 3.414
-1.1349 0.9068 4.1144
-2.1473 0.0053 1.4666
-2.0089 0.0553 2.4783
-2.3862 0.1979 2.3834
-0.407 0.9769 0.5677
-0.5635 1.5686 -0.7268
-0.4006 1.3228 -0.2
-0.399 0.9789 -0.7043
-0.108 0.0472 0.0716
-0.7896 -0.4015 0.5233
0.2572 0.0868 0.7727
-0.8071 -1.2 0.7801
0.0066 -0.7778 1.0839
0.9 -0.5269 0.961
0.9 0.2531 -0.0021
1.4333 -0.1324 0.5785
1.8195 -0.0623 -0.0819
0.3749 -0.1487 -0.6898
1.3199 -0.3594 -0.5536
-0.5471 -0.5161 -0.4053
-0.3343 -1.2 -0.5341
-0.8114 -1.2 0.0501
2.2743 -0.5505 0.4075
1.5807 -0.8783 0.7938
2.2666 -1.2 0.6687
0.9 -1.2 1.1341
0.2464 -1.5089 0.7787
0.9 -2.0662 1.3082
-0.2893 -1.7621 0.3721
-0.2719 -1.7539 -0.3356
0.0541 -2.2467 -0.0386
2.4771 -0.4546 -0.4973
1.7999 -2.3134 -0.1
1.9393 -1.6912 0.2535
1.4696 -2.3405 0.6353
1.7751 -1.6136 1.0736
0.9 -2.5514 -0.0653
0.3381 -2.325 0.6494
1.3528 -2.1065 -0.6663
0.4448 -2.1114 -0.6328
2.2259 -1.8267 -0.4459
2.3618 -1.2 -0.7541
2.8516 -1.2 0.0218
0 0 8.8948
Texture Vertices 73
0.5397 0.8413
0.9206 0.8413
0.4127 0.7778
0.4762 0.8413
0.1587 0.8413
0.5397 0.9048
0.0317 0.7778
0.0317 0.9048
0.6032 0.8413
0.6032 0.7778
0.4127 0.8413
0.7937 0.7778
0.9206 0.9683
0.7302 0.7778
0.9841 0.9048
0.0952 0.9048
0.8571 0.9048
0.6667 0.8413
0.2222 0.7778
0.6032 0.9048
0.1587 0.9048
0.3492 0.7778
0.0952 0.9683
0.9206 0.9048
0.7302 0.8413
0.2222 0.9683
0.2857 0.8413
0.8571 0.8413
0.3492 0.8413
0.4762 0.7778
0.9841 0.8413
0.2222 0.9048
0.3492 0.9048
0.7302 0.9048
0.4127 0.9048
0.4762 0.7143
0.6667 0.9048
0.2857 0.7778
0.1587 0.9683
0.0317 0.8413
0.2222 0.8413
0.9841 0.9683
0.6667 0.7778
0.2857 0.9048
0.3492 0.9683
0.1587 0.7778
0.5397 0.7143
0.3492 0.7143
0.5397 0.7778
0.8571 0.7778
0.2857 0.9683
0.0952 0.7778
0.0952 0.8413
0.0317 0.9683
0.4762 0.9683
0.5397 0.9683
0.7937 0.9048
0.2857 0.7143
0.4127 0.7143
0.4762 0.9048
0.9206 0.7778
0.6667 0.9683
0.6032 0.9683
0.0952 0.7143
0.4127 0.9683
0.8571 0.9683
0.7937 0.8413
0.0317 0.7143
0.2222 0.7143
0.7302 0.9683
0.7937 0.9683
0.9841 0.7778
0.1587 0.7143
Faces 403
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
Face verts 3 flags 0 mat 0
<3,1> <1,1> <4,1>
Face verts 3 flags 0 mat 0
<5,2> <4,2> <2,2>
Face verts 3 flags 0 mat 0
<1,3> <2,3> <4,3>
Face verts 3 flags 0 mat 0
<6,4> <8,4> <7,4>
Face verts 3 flags 0 mat 0
<9,1> <7,1> <10,1>
Face verts 3 flags 0 mat 0
<3,5> <10,5> <8,5>
Face verts 3 flags 0 mat 0
<7,6> <8,6> <10,6>
Face verts 3 flags 0 mat 0
<11,7> <13,7> <12,7>
Face verts 3 flags 0 mat 0
<5,8> <12,8> <14,8>
Face verts 3 flags 0 mat 0
<9,3> <14,3> <13,3>
Face verts 3 flags 0 mat 0
<12,9> <13,9> <14,9>
Face verts 3 flags 0 mat 0
<3,10> <4,10> <10,10>
Face verts 3 flags 0 mat 0
<9,11> <10,11> <14,11>
Face verts 3 flags 0 mat 0
<5,12> <14,12> <4,12>
Face verts 3 flags 0 mat 0
<10,12> <4,12> <14,12>
Face verts 3 flags 0 mat 0
<0,11> <15,11> <2,11>
Face verts 3 flags 0 mat 0
<5,13> <2,13> <16,13>
Face verts 3 flags 0 mat 0
<17,11> <16,11> <15,11>
Face verts 3 flags 0 mat 0
<2,14> <15,14> <16,14>
Face verts 3 flags 0 mat 0
<11,15> <12,15> <18,15>
Face verts 3 flags 0 mat 0
<19,16> <18,16> <20,16>
Face verts 3 flags 0 mat 0
<5,17> <20,17> <12,17>
Face verts 3 flags 0 mat 0
<18,17> <12,17> <20,17>
Face verts 3 flags 0 mat 0
<21,18> <23,18> <22,18>
Face verts 3 flags 0 mat 0
<17,9> <22,9> <24,9>
Face verts 3 flags 0 mat 0
<19,15> <24,15> <23,15>
Face verts 3 flags 0 mat 0
<22,15> <23,15> <24,15>
Face verts 3 flags 0 mat 0
<5,16> <16,16> <20,16>
Face verts 3 flags 0 mat 0
<19,19> <20,19> <24,19>
Face verts 3 flags 0 mat 0
<17,20> <24,20> <16,20>
Face verts 3 flags 0 mat 0
<20,21> <16,21> <24,21>
Face verts 3 flags 0 mat 0
<0,22> <1,22> <25,22>
Face verts 3 flags 0 mat 0
<3,23> <26,23> <1,23>
Face verts 3 flags 0 mat 0
<25,22> <1,22> <26,22>
Face verts 3 flags 0 mat 0
<6,6> <27,6> <8,6>
Face verts 3 flags 0 mat 0
<3,9> <8,9> <28,9>
Face verts 3 flags 0 mat 0
<29,24> <28,24> <27,24>
Face verts 3 flags 0 mat 0
<8,6> <27,6> <28,6>
Face verts 3 flags 0 mat 0
<29,25> <30,25> <28,25>
Face verts 3 flags 0 mat 0
<3,14> <28,14> <26,14>
Face verts 3 flags 0 mat 0
<30,25> <26,25> <28,25>
Face verts 3 flags 0 mat 0
<21,12> <31,12> <23,12>
Face verts 3 flags 0 mat 0
<19,0> <23,0> <32,0>
Face verts 3 flags 0 mat 0
<33,26> <32,26> <31,26>
Face verts 3 flags 0 mat 0
<23,27> <31,27> <32,27>
Face verts 3 flags 0 mat 0
<11,28> <18,28> <34,28>
Face verts 3 flags 0 mat 0
<35,9> <34,9> <36,9>
Face verts 3 flags 0 mat 0
<19,9> <36,9> <18,9>
Face verts 3 flags 0 mat 0
<34,12> <18,12> <36,12>
Face verts 3 flags 0 mat 0
<37,29> <39,29> <38,29>
Face verts 3 flags 0 mat 0
<33,30> <38,30> <40,30>
Face verts 3 flags 0 mat 0
<35,14> <40,14> <39,14>
Face verts 3 flags 0 mat 0
<38,11> <39,11> <40,11>
Face verts 3 flags 0 mat 0
<19,31> <32,31> <36,31>
Face verts 3 flags 0 mat 0
<35,32> <36,32> <40,32>
Face verts 3 flags 0 mat 0
<33,29> <40,29> <32,29>
Face verts 3 flags 0 mat 0
<36,2> <32,2> <40,2>
Face verts 3 flags 0 mat 0
<11,21> <41,21> <13,21>
Face verts 3 flags 0 mat 0
<9,16> <13,16> <42,16>
Face verts 3 flags 0 mat 0
<43,15> <42,15> <41,15>
Face verts 3 flags 0 mat 0
<13,11> <41,11> <42,11>
Face verts 3 flags 0 mat 0
<6,29> <7,29> <44,29>
Face verts 3 flags 0 mat 0
<45,33> <44,33> <46,33>
Face verts 3 flags 0 mat 0
<9,34> <46,34> <7,34>
Face verts 3 flags 0 mat 0
<44,12> <7,12> <46,12>
Face verts 3 flags 0 mat 0
<47,5> <49,5> <48,5>
Face verts 3 flags 0 mat 0
<43,35> <48,35> <50,35>
Face verts 3 flags 0 mat 0
<45,15> <50,15> <49,15>
Face verts 3 flags 0 mat 0
<48,10> <49,10> <50,10>
Face verts 3 flags 0 mat 0
<9,2> <42,2> <46,2>
Face verts 3 flags 0 mat 0
<45,36> <46,36> <50,36>
Face verts 3 flags 0 mat 0
<43,5> <50,5> <42,5>
Face verts 3 flags 0 mat 0
<46,32> <42,32> <50,32>
Face verts 3 flags 0 mat 0
<6,11> <51,11> <27,11>
Face verts 3 flags 0 mat 0
<29,37> <27,37> <52,37>
Face verts 3 flags 0 mat 0
<53,4> <52,4> <51,4>
Face verts 3 flags 0 mat 0
<27,32> <51,32> <52,32>
Face verts 3 flags 0 mat 0
<54,25> <56,25> <55,25>
Face verts 3 flags 0 mat 0
<53,5> <55,5> <57,5>
Face verts 3 flags 0 mat 0
<55,25> <56,25> <57,25>
Face verts 3 flags 0 mat 0
<29,38> <52,38> <58,38>
Face verts 3 flags 0 mat 0
<53,8> <57,8> <52,8>
Face verts 3 flags 0 mat 0
<58,38> <52,38> <57,38>
Face verts 3 flags 0 mat 0
<59,39> <61,39> <60,39>
Face verts 3 flags 0 mat 0
<62,37> <60,37> <63,37>
Face verts 3 flags 0 mat 0
<64,34> <63,34> <61,34>
Face verts 3 flags 0 mat 0
<60,11> <61,11> <63,11>
Face verts 3 flags 0 mat 0
<37,27> <66,27> <65,27>
Face verts 3 flags 0 mat 0
<67,15> <65,15> <68,15>
Face verts 3 flags 0 mat 0
<62,9> <68,9> <66,9>
Face verts 3 flags 0 mat 0
<65,18> <66,18> <68,18>
Face verts 3 flags 0 mat 0
<47,12> <70,12> <69,12>
Face verts 3 flags 0 mat 0
<64,12> <69,12> <71,12>
Face verts 3 flags 0 mat 0
<67,34> <71,34> <70,34>
Face verts 3 flags 0 mat 0
<69,40> <70,40> <71,40>
Face verts 3 flags 0 mat 0
<62,21> <63,21> <68,21>
Face verts 3 flags 0 mat 0
<67,17> <68,17> <71,17>
Face verts 3 flags 0 mat 0
<64,9> <71,9> <63,9>
Face verts 3 flags 0 mat 0
<68,41> <63,41> <71,41>
Face verts 3 flags 0 mat 0
<59,11> <72,11> <61,11>
Face verts 3 flags 0 mat 0
<64,2> <61,2> <73,2>
Face verts 3 flags 0 mat 0
<74,42> <73,42> <72,42>
Face verts 3 flags 0 mat 0
<61,20> <72,20> <73,20>
Face verts 3 flags 0 mat 0
<47,43> <69,43> <75,43>
Face verts 3 flags 0 mat 0
<76,11> <75,11> <77,11>
Face verts 3 flags 0 mat 0
<64,12> <77,12> <69,12>
Face verts 3 flags 0 mat 0
<75,9> <69,9> <77,9>
Face verts 3 flags 0 mat 0
<54,1> <79,1> <78,1>
Face verts 3 flags 0 mat 0
<74,3> <78,3> <80,3>
Face verts 3 flags 0 mat 0
<76,1> <80,1> <79,1>
Face verts 3 flags 0 mat 0
<78,17> <79,17> <80,17>
Face verts 3 flags 0 mat 0
<64,24> <73,24> <77,24>
Face verts 3 flags 0 mat 0
<76,16> <77,16> <80,16>
Face verts 3 flags 0 mat 0
<74,19> <80,19> <73,19>
Face verts 3 flags 0 mat 0
<77,16> <73,16> <80,16>
Face verts 3 flags 0 mat 0
<59,25> <60,25> <81,25>
Face verts 3 flags 0 mat 0
<62,7> <82,7> <60,7>
Face verts 3 flags 0 mat 0
<81,25> <60,25> <82,25>
Face verts 3 flags 0 mat 0
<37,1> <83,1> <66,1>
Face verts 3 flags 0 mat 0
<62,1> <66,1> <84,1>
Face verts 3 flags 0 mat 0
<85,34> <84,34> <83,34>
Face verts 3 flags 0 mat 0
<66,2> <83,2> <84,2>
Face verts 3 flags 0 mat 0
<85,44> <86,44> <84,44>
Face verts 3 flags 0 mat 0
<62,15> <84,15> <82,15>
Face verts 3 flags 0 mat 0
<86,44> <82,44> <84,44>
Face verts 3 flags 0 mat 0
<47,45> <48,45> <70,45>
Face verts 3 flags 0 mat 0
<67,46> <70,46> <87,46>
Face verts 3 flags 0 mat 0
<43,46> <87,46> <48,46>
Face verts 3 flags 0 mat 0
<70,46> <48,46> <87,46>
Face verts 3 flags 0 mat 0
<37,12> <65,12> <39,12>
Face verts 3 flags 0 mat 0
<35,46> <39,46> <88,46>
Face verts 3 flags 0 mat 0
<67,46> <88,46> <65,46>
Face verts 3 flags 0 mat 0
<39,46> <65,46> <88,46>
Face verts 3 flags 0 mat 0
<11,43> <34,43> <41,43>
Face verts 3 flags 0 mat 0
<43,18> <41,18> <89,18>
Face verts 3 flags 0 mat 0
<35,45> <89,45> <34,45>
Face verts 3 flags 0 mat 0
<41,2> <34,2> <89,2>
Face verts 3 flags 0 mat 0
<67,46> <87,46> <88,46>
Face verts 3 flags 0 mat 0
<35,47> <88,47> <89,47>
Face verts 3 flags 0 mat 0
<43,29> <89,29> <87,29>
Face verts 3 flags 0 mat 0
<88,47> <87,47> <89,47>
Face verts 3 flags 0 mat 0
<54,12> <55,12> <79,12>
Face verts 3 flags 0 mat 0
<76,13> <79,13> <90,13>
Face verts 3 flags 0 mat 0
<53,48> <90,48> <55,48>
Face verts 3 flags 0 mat 0
<79,27> <55,27> <90,27>
Face verts 3 flags 0 mat 0
<47,49> <75,49> <49,49>
Face verts 3 flags 0 mat 0
<45,9> <49,9> <91,9>
Face verts 3 flags 0 mat 0
<76,9> <91,9> <75,9>
Face verts 3 flags 0 mat 0
<49,4> <75,4> <91,4>
Face verts 3 flags 0 mat 0
<6,12> <44,12> <51,12>
Face verts 3 flags 0 mat 0
<53,14> <51,14> <92,14>
Face verts 3 flags 0 mat 0
<45,40> <92,40> <44,40>
Face verts 3 flags 0 mat 0
<51,5> <44,5> <92,5>
Face verts 3 flags 0 mat 0
<76,12> <90,12> <91,12>
Face verts 3 flags 0 mat 0
<45,15> <91,15> <92,15>
Face verts 3 flags 0 mat 0
<53,12> <92,12> <90,12>
Face verts 3 flags 0 mat 0
<91,27> <90,27> <92,27>
Face verts 3 flags 0 mat 0
<37,9> <38,9> <83,9>
Face verts 3 flags 0 mat 0
<85,32> <83,32> <93,32>
Face verts 3 flags 0 mat 0
<33,36> <93,36> <38,36>
Face verts 3 flags 0 mat 0
<83,17> <38,17> <93,17>
Face verts 3 flags 0 mat 0
<21,44> <94,44> <31,44>
Face verts 3 flags 0 mat 0
<33,12> <31,12> <95,12>
Face verts 3 flags 0 mat 0
<31,44> <94,44> <95,44>
Face verts 3 flags 0 mat 0
<85,50> <93,50> <96,50>
Face verts 3 flags 0 mat 0
<33,12> <95,12> <93,12>
Face verts 3 flags 0 mat 0
<96,50> <93,50> <95,50>
Face verts 3 flags 0 mat 0
<97,17> <99,17> <98,17>
Face verts 3 flags 0 mat 0
<100,51> <98,51> <101,51>
Face verts 3 flags 0 mat 0
<102,42> <101,42> <99,42>
Face verts 3 flags 0 mat 0
<98,14> <99,14> <101,14>
Face verts 3 flags 0 mat 0
<103,14> <105,14> <104,14>
Face verts 3 flags 0 mat 0
<106,2> <104,2> <107,2>
Face verts 3 flags 0 mat 0
<100,15> <107,15> <105,15>
Face verts 3 flags 0 mat 0
<104,26> <105,26> <107,26>
Face verts 3 flags 0 mat 0
<108,31> <110,31> <109,31>
Face verts 3 flags 0 mat 0
<102,11> <109,11> <111,11>
Face verts 3 flags 0 mat 0
<106,31> <111,31> <110,31>
Face verts 3 flags 0 mat 0
<109,12> <110,12> <111,12>
Face verts 3 flags 0 mat 0
<100,16> <101,16> <107,16>
Face verts 3 flags 0 mat 0
<106,10> <107,10> <111,10>
Face verts 3 flags 0 mat 0
<102,5> <111,5> <101,5>
Face verts 3 flags 0 mat 0
<107,17> <101,17> <111,17>
Face verts 3 flags 0 mat 0
<97,9> <112,9> <99,9>
Face verts 3 flags 0 mat 0
<102,1> <99,1> <113,1>
Face verts 3 flags 0 mat 0
<114,9> <113,9> <112,9>
Face verts 3 flags 0 mat 0
<99,14> <112,14> <113,14>
Face verts 3 flags 0 mat 0
<108,14> <109,14> <115,14>
Face verts 3 flags 0 mat 0
<116,12> <115,12> <117,12>
Face verts 3 flags 0 mat 0
<102,52> <117,52> <109,52>
Face verts 3 flags 0 mat 0
<115,21> <109,21> <117,21>
Face verts 3 flags 0 mat 0
<118,11> <120,11> <119,11>
Face verts 3 flags 0 mat 0
<114,9> <119,9> <121,9>
Face verts 3 flags 0 mat 0
<116,36> <121,36> <120,36>
Face verts 3 flags 0 mat 0
<119,10> <120,10> <121,10>
Face verts 3 flags 0 mat 0
<102,48> <113,48> <117,48>
Face verts 3 flags 0 mat 0
<116,11> <117,11> <121,11>
Face verts 3 flags 0 mat 0
<114,26> <121,26> <113,26>
Face verts 3 flags 0 mat 0
<117,0> <113,0> <121,0>
Face verts 3 flags 0 mat 0
<97,53> <122,53> <112,53>
Face verts 3 flags 0 mat 0
<114,22> <112,22> <123,22>
Face verts 3 flags 0 mat 0
<118,53> <119,53> <124,53>
Face verts 3 flags 0 mat 0
<114,22> <125,22> <119,22>
Face verts 3 flags 0 mat 0
<97,54> <98,54> <126,54>
Face verts 3 flags 0 mat 0
<100,34> <127,34> <98,34>
Face verts 3 flags 0 mat 0
<126,54> <98,54> <127,54>
Face verts 3 flags 0 mat 0
<103,32> <128,32> <105,32>
Face verts 3 flags 0 mat 0
<100,11> <105,11> <129,11>
Face verts 3 flags 0 mat 0
<130,34> <129,34> <128,34>
Face verts 3 flags 0 mat 0
<105,13> <128,13> <129,13>
Face verts 3 flags 0 mat 0
<130,55> <131,55> <129,55>
Face verts 3 flags 0 mat 0
<100,32> <129,32> <127,32>
Face verts 3 flags 0 mat 0
<131,55> <127,55> <129,55>
Face verts 3 flags 0 mat 0
<118,1> <132,1> <120,1>
Face verts 3 flags 0 mat 0
<116,21> <120,21> <133,21>
Face verts 3 flags 0 mat 0
<134,33> <133,33> <132,33>
Face verts 3 flags 0 mat 0
<120,31> <132,31> <133,31>
Face verts 3 flags 0 mat 0
<108,31> <115,31> <135,31>
Face verts 3 flags 0 mat 0
<136,56> <135,56> <137,56>
Face verts 3 flags 0 mat 0
<116,33> <137,33> <115,33>
Face verts 3 flags 0 mat 0
<135,51> <115,51> <137,51>
Face verts 3 flags 0 mat 0
<138,12> <140,12> <139,12>
Face verts 3 flags 0 mat 0
<134,21> <139,21> <141,21>
Face verts 3 flags 0 mat 0
<136,11> <141,11> <140,11>
Face verts 3 flags 0 mat 0
<139,12> <140,12> <141,12>
Face verts 3 flags 0 mat 0
<116,32> <133,32> <137,32>
Face verts 3 flags 0 mat 0
<136,11> <137,11> <141,11>
Face verts 3 flags 0 mat 0
<134,21> <141,21> <133,21>
Face verts 3 flags 0 mat 0
<137,7> <133,7> <141,7>
Face verts 3 flags 0 mat 0
<108,57> <142,57> <110,57>
Face verts 3 flags 0 mat 0
<106,27> <110,27> <143,27>
Face verts 3 flags 0 mat 0
<144,46> <143,46> <142,46>
Face verts 3 flags 0 mat 0
<110,58> <142,58> <143,58>
Face verts 3 flags 0 mat 0
<103,27> <104,27> <145,27>
Face verts 3 flags 0 mat 0
<146,27> <145,27> <147,27>
Face verts 3 flags 0 mat 0
<106,36> <147,36> <104,36>
Face verts 3 flags 0 mat 0
<145,9> <104,9> <147,9>
Face verts 3 flags 0 mat 0
<148,41> <150,41> <149,41>
Face verts 3 flags 0 mat 0
<144,18> <149,18> <151,18>
Face verts 3 flags 0 mat 0
<146,12> <151,12> <150,12>
Face verts 3 flags 0 mat 0
<149,59> <150,59> <151,59>
Face verts 3 flags 0 mat 0
<106,16> <143,16> <147,16>
Face verts 3 flags 0 mat 0
<146,12> <147,12> <151,12>
Face verts 3 flags 0 mat 0
<144,9> <151,9> <143,9>
Face verts 3 flags 0 mat 0
<147,26> <143,26> <151,26>
Face verts 3 flags 0 mat 0
<103,19> <152,19> <128,19>
Face verts 3 flags 0 mat 0
<130,34> <128,34> <153,34>
Face verts 3 flags 0 mat 0
<154,21> <153,21> <152,21>
Face verts 3 flags 0 mat 0
<128,48> <152,48> <153,48>
Face verts 3 flags 0 mat 0
<155,55> <157,55> <156,55>
Face verts 3 flags 0 mat 0
<154,16> <156,16> <158,16>
Face verts 3 flags 0 mat 0
<156,55> <157,55> <158,55>
Face verts 3 flags 0 mat 0
<130,55> <153,55> <159,55>
Face verts 3 flags 0 mat 0
<154,36> <158,36> <153,36>
Face verts 3 flags 0 mat 0
<159,55> <153,55> <158,55>
Face verts 3 flags 0 mat 0
<160,24> <162,24> <161,24>
Face verts 3 flags 0 mat 0
<163,14> <161,14> <164,14>
Face verts 3 flags 0 mat 0
<165,11> <164,11> <162,11>
Face verts 3 flags 0 mat 0
<161,36> <162,36> <164,36>
Face verts 3 flags 0 mat 0
<138,12> <167,12> <166,12>
Face verts 3 flags 0 mat 0
<168,11> <166,11> <169,11>
Face verts 3 flags 0 mat 0
<163,37> <169,37> <167,37>
Face verts 3 flags 0 mat 0
<166,12> <167,12> <169,12>
Face verts 3 flags 0 mat 0
<148,60> <171,60> <170,60>
Face verts 3 flags 0 mat 0
<165,37> <170,37> <172,37>
Face verts 3 flags 0 mat 0
<168,16> <172,16> <171,16>
Face verts 3 flags 0 mat 0
<170,10> <171,10> <172,10>
Face verts 3 flags 0 mat 0
<163,18> <164,18> <169,18>
Face verts 3 flags 0 mat 0
<168,13> <169,13> <172,13>
Face verts 3 flags 0 mat 0
<165,12> <172,12> <164,12>
Face verts 3 flags 0 mat 0
<169,32> <164,32> <172,32>
Face verts 3 flags 0 mat 0
<160,11> <173,11> <162,11>
Face verts 3 flags 0 mat 0
<165,24> <162,24> <174,24>
Face verts 3 flags 0 mat 0
<175,11> <174,11> <173,11>
Face verts 3 flags 0 mat 0
<162,26> <173,26> <174,26>
Face verts 3 flags 0 mat 0
<148,3> <170,3> <176,3>
Face verts 3 flags 0 mat 0
<177,15> <176,15> <178,15>
Face verts 3 flags 0 mat 0
<165,20> <178,20> <170,20>
Face verts 3 flags 0 mat 0
<176,30> <170,30> <178,30>
Face verts 3 flags 0 mat 0
<155,11> <180,11> <179,11>
Face verts 3 flags 0 mat 0
<175,11> <179,11> <181,11>
Face verts 3 flags 0 mat 0
<177,32> <181,32> <180,32>
Face verts 3 flags 0 mat 0
<179,1> <180,1> <181,1>
Face verts 3 flags 0 mat 0
<165,11> <174,11> <178,11>
Face verts 3 flags 0 mat 0
<177,29> <178,29> <181,29>
Face verts 3 flags 0 mat 0
<175,24> <181,24> <174,24>
Face verts 3 flags 0 mat 0
<178,52> <174,52> <181,52>
Face verts 3 flags 0 mat 0
<160,53> <182,53> <173,53>
Face verts 3 flags 0 mat 0
<175,53> <173,53> <183,53>
Face verts 3 flags 0 mat 0
<155,53> <179,53> <184,53>
Face verts 3 flags 0 mat 0
<175,53> <185,53> <179,53>
Face verts 3 flags 0 mat 0
<160,61> <161,61> <186,61>
Face verts 3 flags 0 mat 0
<163,3> <187,3> <161,3>
Face verts 3 flags 0 mat 0
<186,62> <161,62> <187,62>
Face verts 3 flags 0 mat 0
<138,37> <188,37> <167,37>
Face verts 3 flags 0 mat 0
<163,16> <167,16> <189,16>
Face verts 3 flags 0 mat 0
<190,52> <189,52> <188,52>
Face verts 3 flags 0 mat 0
<167,4> <188,4> <189,4>
Face verts 3 flags 0 mat 0
<190,54> <191,54> <189,54>
Face verts 3 flags 0 mat 0
<163,3> <189,3> <187,3>
Face verts 3 flags 0 mat 0
<191,54> <187,54> <189,54>
Face verts 3 flags 0 mat 0
<148,15> <149,15> <171,15>
Face verts 3 flags 0 mat 0
<168,16> <171,16> <192,16>
Face verts 3 flags 0 mat 0
<144,11> <192,11> <149,11>
Face verts 3 flags 0 mat 0
<171,24> <149,24> <192,24>
Face verts 3 flags 0 mat 0
<138,14> <166,14> <140,14>
Face verts 3 flags 0 mat 0
<136,17> <140,17> <193,17>
Face verts 3 flags 0 mat 0
<168,8> <193,8> <166,8>
Face verts 3 flags 0 mat 0
<140,11> <166,11> <193,11>
Face verts 3 flags 0 mat 0
<108,63> <135,63> <142,63>
Face verts 3 flags 0 mat 0
<144,46> <142,46> <194,46>
Face verts 3 flags 0 mat 0
<136,16> <194,16> <135,16>
Face verts 3 flags 0 mat 0
<142,30> <135,30> <194,30>
Face verts 3 flags 0 mat 0
<168,16> <192,16> <193,16>
Face verts 3 flags 0 mat 0
<136,5> <193,5> <194,5>
Face verts 3 flags 0 mat 0
<144,35> <194,35> <192,35>
Face verts 3 flags 0 mat 0
<193,21> <192,21> <194,21>
Face verts 3 flags 0 mat 0
<155,18> <156,18> <180,18>
Face verts 3 flags 0 mat 0
<177,30> <180,30> <195,30>
Face verts 3 flags 0 mat 0
<154,40> <195,40> <156,40>
Face verts 3 flags 0 mat 0
<180,15> <156,15> <195,15>
Face verts 3 flags 0 mat 0
<148,14> <176,14> <150,14>
Face verts 3 flags 0 mat 0
<146,51> <150,51> <196,51>
Face verts 3 flags 0 mat 0
<177,32> <196,32> <176,32>
Face verts 3 flags 0 mat 0
<150,9> <176,9> <196,9>
Face verts 3 flags 0 mat 0
<103,32> <145,32> <152,32>
Face verts 3 flags 0 mat 0
<154,16> <152,16> <197,16>
Face verts 3 flags 0 mat 0
<146,9> <197,9> <145,9>
Face verts 3 flags 0 mat 0
<152,34> <145,34> <197,34>
Face verts 3 flags 0 mat 0
<177,39> <195,39> <196,39>
Face verts 3 flags 0 mat 0
<146,9> <196,9> <197,9>
Face verts 3 flags 0 mat 0
<154,27> <197,27> <195,27>
Face verts 3 flags 0 mat 0
<196,12> <195,12> <197,12>
Face verts 3 flags 0 mat 0
<155,53> <184,53> <157,53>
Face verts 3 flags 0 mat 0
<138,37> <139,37> <188,37>
Face verts 3 flags 0 mat 0
<190,4> <188,4> <198,4>
Face verts 3 flags 0 mat 0
<134,16> <198,16> <139,16>
Face verts 3 flags 0 mat 0
<188,4> <139,4> <198,4>
Face verts 3 flags 0 mat 0
<118,54> <199,54> <132,54>
Face verts 3 flags 0 mat 0
<134,8> <132,8> <200,8>
Face verts 3 flags 0 mat 0
<132,64> <199,64> <200,64>
Face verts 3 flags 0 mat 0
<190,54> <198,54> <201,54>
Face verts 3 flags 0 mat 0
<134,0> <200,0> <198,0>
Face verts 3 flags 0 mat 0
<201,54> <198,54> <200,54>
Face verts 3 flags 0 mat 0
<202,33> <204,33> <203,33>
Face verts 3 flags 0 mat 0
<205,60> <203,60> <206,60>
Face verts 3 flags 0 mat 0
<207,63> <206,63> <204,63>
Face verts 3 flags 0 mat 0
<203,60> <204,60> <206,60>
Face verts 3 flags 0 mat 0
<202,27> <208,27> <204,27>
Face verts 3 flags 0 mat 0
<207,60> <204,60> <209,60>
Face verts 3 flags 0 mat 0
<210,2> <209,2> <208,2>
Face verts 3 flags 0 mat 0
<204,56> <208,56> <209,56>
Face verts 3 flags 0 mat 0
<202,55> <211,55> <208,55>
Face verts 3 flags 0 mat 0
<210,55> <208,55> <212,55>
Face verts 3 flags 0 mat 0
<208,25> <211,25> <212,25>
Face verts 3 flags 0 mat 0
<202,50> <213,50> <211,50>
Face verts 3 flags 0 mat 0
<202,65> <203,65> <213,65>
Face verts 3 flags 0 mat 0
<214,44> <213,44> <215,44>
Face verts 3 flags 0 mat 0
<205,33> <215,33> <203,33>
Face verts 3 flags 0 mat 0
<213,65> <203,65> <215,65>
Face verts 3 flags 0 mat 0
<210,66> <216,66> <209,66>
Face verts 3 flags 0 mat 0
<207,60> <209,60> <217,60>
Face verts 3 flags 0 mat 0
<218,49> <217,49> <216,49>
Face verts 3 flags 0 mat 0
<209,60> <216,60> <217,60>
Face verts 3 flags 0 mat 0
<207,57> <219,57> <206,57>
Face verts 3 flags 0 mat 0
<205,67> <206,67> <220,67>
Face verts 3 flags 0 mat 0
<221,57> <220,57> <219,57>
Face verts 3 flags 0 mat 0
<206,68> <219,68> <220,68>
Face verts 3 flags 0 mat 0
<205,39> <222,39> <215,39>
Face verts 3 flags 0 mat 0
<214,44> <215,44> <223,44>
Face verts 3 flags 0 mat 0
<224,65> <223,65> <222,65>
Face verts 3 flags 0 mat 0
<215,65> <222,65> <223,65>
Face verts 3 flags 0 mat 0
<210,25> <212,25> <225,25>
Face verts 3 flags 0 mat 0
<226,1> <228,1> <227,1>
Face verts 3 flags 0 mat 0
<218,12> <227,12> <229,12>
Face verts 3 flags 0 mat 0
<221,10> <229,10> <228,10>
Face verts 3 flags 0 mat 0
<227,12> <228,12> <229,12>
Face verts 3 flags 0 mat 0
<226,69> <230,69> <228,69>
Face verts 3 flags 0 mat 0
<221,5> <228,5> <231,5>
Face verts 3 flags 0 mat 0
<224,21> <231,21> <230,21>
Face verts 3 flags 0 mat 0
<228,14> <230,14> <231,14>
Face verts 3 flags 0 mat 0
<226,44> <232,44> <230,44>
Face verts 3 flags 0 mat 0
<224,64> <230,64> <233,64>
Face verts 3 flags 0 mat 0
<230,22> <232,22> <233,22>
Face verts 3 flags 0 mat 0
<226,25> <234,25> <232,25>
Face verts 3 flags 0 mat 0
<226,69> <227,69> <234,69>
Face verts 3 flags 0 mat 0
<235,25> <234,25> <236,25>
Face verts 3 flags 0 mat 0
<218,24> <236,24> <227,24>
Face verts 3 flags 0 mat 0
<234,70> <227,70> <236,70>
Face verts 3 flags 0 mat 0
<221,58> <219,58> <229,58>
Face verts 3 flags 0 mat 0
<218,71> <229,71> <217,71>
Face verts 3 flags 0 mat 0
<207,72> <217,72> <219,72>
Face verts 3 flags 0 mat 0
<229,68> <219,68> <217,68>
Face verts 3 flags 0 mat 0
<224,8> <222,8> <231,8>
Face verts 3 flags 0 mat 0
<221,16> <231,16> <220,16>
Face verts 3 flags 0 mat 0
<205,12> <220,12> <222,12>
Face verts 3 flags 0 mat 0
<231,60> <222,60> <220,60>
Face verts 3 flags 0 mat 0
<224,50> <233,50> <223,50>
Face verts 3 flags 0 mat 0
<218,26> <216,26> <236,26>
Face verts 3 flags 0 mat 0
<235,25> <236,25> <225,25>
Face verts 3 flags 0 mat 0
<210,70> <225,70> <216,70>
Face verts 3 flags 0 mat 0
<236,65> <216,65> <225,65>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\spire.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
