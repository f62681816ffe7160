obj/cam1.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
set -g CAMLEAK = 'leak'
}
set -g AFTER = 'seen'
obj/cam_nores.parm {
focal	[ 0	locks=0 ]	(	50	)
}
obj/cam_square.parm {
res	[ 0 ]	(	640	)
}
obj/cam_quoted.parm {
RES	[ 0 ]	(	"800"	"600"	)
}
obj/cam_text.parm {
res	[ 0 ]	(	wide	1080	)
}
obj/cam_open.parm {
res	[ 0 ]	(	1920	1080
}
obj/cam_menu.parm {
resMenu	[ 0 ]	(	7	8	)
}
obj/cam_last.parm {

# res	(	1	2	)
res	[ 0	locks=0 ]	(	1920	1080	)
res	[ 0 ]	(	320	240	)
}
hip.dir/obj/cam_prefixed.parm {
res	[ 0	locks=0 ]	(	100	50	)
}
out/cam_out.parm {
res	[ 0	locks=0 ]	(	200	100	)
}
obj/cam_Stereo.parm {
res	[ 0	locks=0 ]	(	300	200	)
}
obj/stereocam1/left.parm {
res	[ 0	locks=0 ]	(	400	300	)
}
obj/camXFORM.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
obj/rig/camOrigin.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
obj/cam_file.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
obj/cam1/constraints.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
}
obj/cam_again.parm {
res	[ 0	locks=0 ]	(	640	480	)
}
obj/cam_again.parm {
res	[ 0	locks=0 ]	(	1280	720	)
}
obj/camcccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccc.parm {
res	[ 0	locks=0 ]	(	500	400	)
}
out/r_cam1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS_$CAMLEAK_$AFTER.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
}
out/r_nores.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_nores	)
}
out/r_square.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_square	)
}
out/r_quoted.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_quoted	)
}
out/r_text.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_text	)
}
out/r_open.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_open	)
}
out/r_menu.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_menu	)
}
out/r_last.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_last	)
}
out/r_prefixed.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_prefixed	)
}
out/r_out.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/out/cam_out	)
}
out/r_stereo.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_Stereo	)
}
out/r_stereo2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/stereocam1/left	)
}
out/r_xform.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/camXFORM	)
}
out/r_origin.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/rig/camOrigin	)
}
out/r_file.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_file	)
}
out/r_constraints.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1/constraints	)
}
out/r_again.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_again	)
}
out/r_case.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/CAM1	)
}
out/r_two.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_square	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
}
out/r_long.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/camcccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccc	)
}
out/r_cut.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_cut	)
}
obj/cam_é€.parm {
res	[ 0	locks=0 ]	(	700	500	)
}
out/r_latin.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/c/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_é€	)
}
obj/cam_cut.parm {
res	[ 0	locks=0 ]	(	1920	1080	)
