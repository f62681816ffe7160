frange 1001 1100
set -g SHOT = 'sh010.hip'
set -g SHOTDIR = 'never'
set -g LONGNAME = 'L'
set -g LONG = 's'
set -g MULTI = 'x.hiplcy.hipz.hipnc'
set -g A = '$HIP'
set -g B = '$OS-$RFSTART'
set -g HIPNAME = 'never'
set -g LOOP = '$LOOP$LOOP'
out/v1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v1/$HIPNAME.$F4.exr"	)
}
out/v2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v2/$hipname:r_$HIPNAME:r_$HIPNAME:e.$F4.exr"	)
}
out/v3.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP:r/v3/x.$F4.exr"	)
}
out/v4.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIPPATH/v4/x.$F4.exr"	)
}
out/v5.parm {
vm_picture	[ 0	locks=0 ]	(	"$Hip/v5/x.$F4.exr"	)
}
out/v6.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIPX/v6/x.$F4.exr"	)
}
out/v7.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v7/$OS_$RFSTART_$RFEND_x.$F4.exr"	)
}
out/v9.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v9/$SHOT:r_$SHOT_$SHOTDIR_$MULTI:r_x.$F4.exr"	)
}
out/v10.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v10/$LONGNAME_$LONG_x.$F4.exr"	)
}
out/v11.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v11/$A_$B_x.$F4.exr"	)
}
out/v12.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v12/$LOOP_$UNKNOWN_x.$F4.exr"	)
}
out/big.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/big/$RFSTART_$RFEND_x.$F4.exr"	)
trange	[ 0	locks=0 ]	(	"on"	)
f	[ 0	locks=0 ]	(	1234567	1000000	1	)
}
out/brace.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/p/brace.$F4.exr"	)
ar_aov_separate_file1	[ 0	locks=0 ]	(	"${HIP}/c1/${HIPNAME}.exr"	)
ar_aov_separate_file2	[ 0	locks=0 ]	(	"/c2/${hipname}:r_${HIPNAME}.exr"	)
ar_aov_separate_file3	[ 0	locks=0 ]	(	"${HIPPATH}/c3/x.exr"	)
ar_aov_separate_file4	[ 0	locks=0 ]	(	"/c4/${OS}_${RFSTART}_${RFEND}_x.exr"	)
ar_aov_separate_file5	[ 0	locks=0 ]	(	"/c5/${SHOT}:r_${shot}_${LONGNAME}_x.exr"	)
}
